// Checks of the test program that runs under Wine or on Windows, where no test framework is at hand.
#pragma once

#include <functional>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace kavelin::test {

struct Outcome {
    int checks = 0;
    int failures = 0;
};

inline Outcome& Checks()
{
    static Outcome outcome;
    return outcome;
}

struct NamedTest {
    const char* name;
    std::function<void()> run;
};

inline std::vector<NamedTest>& Tests()
{
    static std::vector<NamedTest> tests;
    return tests;
}

struct Registered {
    Registered(const char* name, std::function<void()> run) { Tests().push_back({name, std::move(run)}); }
};

template <class T>
std::string Shown(const T& value)
{
    std::ostringstream text;
    text << value;
    return text.str();
}

inline std::string Shown(long value)
{
    std::ostringstream text;
    text << value << " (0x" << std::hex << static_cast<unsigned long>(value) << ")";
    return text.str();
}

template <class A, class B>
void CheckEqual(const A& given, const B& wanted, const char* expression, const char* file, int line)
{
    ++Checks().checks;
    if (given == wanted)
        return;
    ++Checks().failures;
    std::cout << file << ":" << line << ": " << expression << "\n  given:  " << Shown(given)
              << "\n  wanted: " << Shown(wanted) << std::endl;
}

}  // namespace kavelin::test

#define KAVELIN_TEST(name)                                                       \
    static void Test##name();                                                    \
    static const kavelin::test::Registered kRegistered##name(#name, Test##name); \
    static void Test##name()

#define CHECK_EQUAL(given, wanted) \
    kavelin::test::CheckEqual((given), (wanted), #given, __FILE_NAME__, __LINE__)
#define CHECK(fact) CHECK_EQUAL(static_cast<bool>(fact), true)
