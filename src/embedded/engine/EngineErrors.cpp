#include "embedded/engine/EngineErrors.h"

#include "embedded/syntax/Position.h"
#include "embedded/write/DuckErrors.h"

#include <string_view>

namespace kavelin::embedded {

namespace {

struct State {
    int number;
    const char* sqlState;
};
constexpr State kStates[] = {
    {102, "42000"},  {105, "42000"},  {120, "21S01"},  {156, "42000"},  {191, "42000"},  {207, "42S22"},
    {208, "42S02"},  {209, "42000"},  {213, "21S01"},  {241, "22007"},  {242, "22007"},  {245, "22018"},
    {257, "42000"},  {512, "21000"},  {515, "23000"},  {701, "HY001"},  {823, "HY000"},  {824, "HY000"},
    {1038, "42000"}, {1105, "HY000"}, {2627, "23000"}, {2705, "42S21"}, {2714, "42S01"}, {3701, "42S02"},
    {4104, "42000"}, {8114, "22018"}, {8115, "22003"}, {8120, "42000"}, {8134, "22012"}, {8152, "22001"},
};

constexpr const char* kDamaged =
    "The account's file is damaged: what was read is not what was written. Put back a copy of it.";
constexpr const char* kNoMemory =
    "There is insufficient system memory to run this query. KAVELIN_MEMORY and KAVELIN_SPILL allow more.";

// Failures that no statement names: those of the machine and of the appender. The first that fits counts.
struct Failure {
    std::string_view part;
    int number;
    const char* message;
};
constexpr Failure kFailures[] = {
    {"No space left on device", 1105, "The disk is full. Make room and try again."},
    {"Out of Memory Error", 701, kNoMemory},
    {"could not allocate block", 701, kNoMemory},  // the same from the appender
    {"Corrupt database file", 824, kDamaged},
    {"Could not read enough bytes", 823, kDamaged},
    {"database has been invalidated", 1105,
     "The account's files failed earlier, and nothing more is done with them. Open the account again."},
    {"PRIMARY KEY or UNIQUE constraint violation", 2627,
     "Violation of PRIMARY KEY constraint. Cannot insert duplicate key."},
};

void SetNumber(DatabaseError::Details& details, int number)
{
    details.lngNumber = number;
    for (const State& state : kStates)
        if (state.number == number)
            details.strSqlState = state.sqlState;
}

void SetPlace(DatabaseError::Details& details, const std::string& batch, Place place)
{
    if (batch.empty())
        return;
    const LineColumn position = LineAndColumn(batch, place.offset);
    details.strStatement = batch;
    details.lngLine = static_cast<std::int32_t>(position.line);
    details.lngColumn = static_cast<std::int32_t>(position.column);
}

}  // namespace

DatabaseError::Details DetailsOf(const SqlError& error, const std::string& batch)
{
    DatabaseError::Details details;
    details.strMessage = error.what();
    SetNumber(details, error.Number());
    SetPlace(details, batch, error.Where());
    return details;
}

DatabaseError::Details DetailsOf(const DuckError& error, const std::string& batch, Place statement)
{
    DatabaseError::Details details;
    SetPlace(details, batch, statement);

    const std::string_view message = error.what();
    if (IsInterrupt(error)) {
        details.strSqlState = "HY008";
        details.strMessage = "The statement was cancelled.";
        return details;
    }
    for (const Failure& failure : kFailures) {
        if (message.find(failure.part) != std::string_view::npos) {
            SetNumber(details, failure.number);
            details.strMessage = failure.message;
            return details;
        }
    }
    const SqlMessage known = SqlErrorOfDuck(message);
    SetNumber(details, known.number);
    details.strMessage = known.text;
    return details;
}

std::string WordsOf(const DuckError& error)
{
    return DetailsOf(error, {}, {}).strMessage;
}

ConnectionError Refusal(const std::string& sentence, const std::string& sqlState)
{
    DatabaseError::Details details;
    details.strMessage = sentence;
    details.strSqlState = sqlState;
    return ConnectionError(details);
}

bool IsInterrupt(const DuckError& error)
{
    return std::string_view(error.what()).starts_with("INTERRUPT Error");
}

}  // namespace kavelin::embedded
