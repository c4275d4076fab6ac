#include "support/EventLog.h"

#include "frame/Errors.h"

namespace kavelin::test {

void EventLog::Add(const std::string& line)
{
    lstLines.push_back(line);
    const bool fails = lstLines.size() == lngFailAt || strFailAt == line;
    if (!fails)
        return;
    lngFailAt = 0;
    strFailAt.reset();
    const std::string text = "planned failure at: " + line;
    if (blnErrors)
        throw Error(text);
    throw PlannedFailure(text);
}

void EventLog::FailAt(std::size_t number)
{
    lngFailAt = lstLines.size() + number;
}

void EventLog::FailAt(const std::string& line)
{
    strFailAt = line;
}

std::string EventLog::Text() const
{
    std::string text;
    for (const std::string& line : lstLines)
        text += line + "\n";
    return text;
}

void EventLog::Clear()
{
    lstLines.clear();
    lngFailAt = 0;
    strFailAt.reset();
}

}  // namespace kavelin::test
