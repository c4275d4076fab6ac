// What happened to the objects of a recording host, in order: one line of text an event.
#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace kavelin::test {

// The failure that a test asked for. Not derived from frame's Error, so that nothing can mistake it for one
// of the library's own.
class PlannedFailure : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

class EventLog {
  public:
    // Adds a line; throws, once the line stands, if this is the event that is to fail.
    void Add(const std::string& line);

    // The `number`-th event from now on, from 1, fails.
    void FailAt(std::size_t number);

    // The next event with exactly this line fails.
    void FailAt(const std::string& line);

    const std::vector<std::string>& Lines() const { return lstLines; }

    // From now on the failure is an Error, as those are that a host's objects throw.
    void FailWithErrors() { blnErrors = true; }

    // All lines, each with LF behind it.
    std::string Text() const;

    void Clear();

  private:
    std::vector<std::string> lstLines;
    std::size_t lngFailAt = 0;  // position from 1, 0 for none
    std::optional<std::string> strFailAt;
    bool blnErrors = false;
};

}  // namespace kavelin::test
