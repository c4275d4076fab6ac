#include "cli/Batch.h"

#include "embedded/Plan.h"
#include "embedded/SqlError.h"
#include "embedded/engine/EngineErrors.h"
#include "embedded/syntax/Position.h"

namespace kavelin::cli {

namespace {

bool GivesRows(const embedded::Statement& statement)
{
    if (const auto* test = std::get_if<embedded::IfExistsStatement>(&statement.node))
        return GivesRows(*test->then);
    const auto* select = std::get_if<embedded::SelectStatement>(&statement.node);
    return select && !select->query->selects.front().into;
}

}  // namespace

std::vector<BatchPart> SplitBatch(const std::string& batch)
{
    try {
        std::vector<BatchPart> parts;
        for (const embedded::StatementPtr& statement : embedded::ParseBatch(batch))
            parts.push_back({"", statement->place.offset, GivesRows(*statement)});
        for (std::size_t part = 0; part < parts.size(); ++part) {
            const std::size_t end = part + 1 < parts.size() ? parts[part + 1].offset : batch.size();
            parts[part].text = batch.substr(parts[part].offset, end - parts[part].offset);
        }
        return parts;
    } catch (const embedded::SqlError& error) {
        throw DatabaseError(embedded::DetailsOf(error, batch));
    }
}

std::vector<BatchPart> SplitForServer(const std::string& batch)
{
    try {
        return SplitBatch(batch);
    } catch (const DatabaseError&) {
        return {{batch, 0, true}};
    }
}

DatabaseError::Details InBatch(DatabaseError::Details details, const std::string& batch,
                               const BatchPart& part)
{
    const embedded::LineColumn start = embedded::LineAndColumn(batch, part.offset);
    if (details.lngLine == 1 && details.lngColumn > 0)
        details.lngColumn += static_cast<std::int32_t>(start.column) - 1;
    if (details.lngLine > 0)
        details.lngLine += static_cast<std::int32_t>(start.line) - 1;
    details.strStatement = batch;
    return details;
}

}  // namespace kavelin::cli
