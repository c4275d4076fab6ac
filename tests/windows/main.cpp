// Tests of the Windows component in C++: what a script can't say. Needs the component registered. Runs in the
// order of the tests' names, with arguments those whose names contain one of them, and ends with "OK n checks"
// or with what failed.
#include "Check.h"

#include "com/Windows.h"

#include <algorithm>
#include <cstring>
#include <exception>

namespace {

bool IsWanted(const char* name, int count, char** arguments)
{
    for (int i = 1; i < count; ++i)
        if (std::strstr(name, arguments[i]))
            return true;
    return count == 1;
}

}  // namespace

int main(int count, char** arguments)
{
    using namespace kavelin::test;
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    std::sort(Tests().begin(), Tests().end(),
              [](const NamedTest& a, const NamedTest& b) { return std::strcmp(a.name, b.name) < 0; });
    for (const NamedTest& test : Tests()) {
        if (!IsWanted(test.name, count, arguments))
            continue;
        const int before = Checks().failures;
        try {
            test.run();
        } catch (const std::exception& error) {
            ++Checks().failures;
            std::cout << "it threw: " << error.what() << std::endl;
        }
        if (Checks().failures > before)
            std::cout << "FAILED " << test.name << std::endl;
    }
    // Left initialised: the end of a process that never leaves its apartment is a test too.
    const Outcome outcome = Checks();
    if (outcome.failures)
        std::cout << outcome.failures << " of " << outcome.checks << " checks failed" << std::endl;
    else
        std::cout << "OK " << outcome.checks << " checks" << std::endl;
    return outcome.failures ? 1 : 0;
}
