#include "support/tds/BatchRun.h"

#include "embedded/Plan.h"
#include "embedded/syntax/Position.h"
#include "frame/Errors.h"
#include "support/tds/Columns.h"

#include <algorithm>
#include <utility>

namespace kavelin::test::tds {

namespace {

constexpr std::int32_t kNoNumber = 50000;  // for errors of an engine that gives them none

// The connection is to end now, as the test ordered.
class DroppedByOrder : public ProtocolError {
  public:
    DroppedByOrder() : ProtocolError("dropped by order") {}
};

// The severities of the errors that don't have 16.
int SeverityOf(std::int32_t number)
{
    constexpr std::pair<std::int32_t, int> kSeverities[] = {
        {102, 15}, {105, 15}, {156, 15}, {191, 15}, {701, 17}, {823, 24}, {824, 24}, {2627, 14}, {3701, 11},
    };
    for (const auto& [known, severity] : kSeverities)
        if (known == number)
            return severity;
    return 16;
}

ServerMessage MessageOf(const DatabaseError& error, std::int32_t firstLine)
{
    const DatabaseError::Details& details = error.Get();
    const std::int32_t number = details.lngNumber != 0 ? details.lngNumber : kNoNumber;
    return {number, SeverityOf(number), details.strMessage, firstLine + std::max(details.lngLine, 1) - 1};
}

bool GivesRows(const embedded::Statement& statement)
{
    if (const auto* test = std::get_if<embedded::IfExistsStatement>(&statement.node))
        return GivesRows(*test->then);
    const auto* select = std::get_if<embedded::SelectStatement>(&statement.node);
    return select && !select->query->selects.front().into;
}

bool IsRun(const std::optional<Fault>& fault, FaultKind kind)
{
    return fault && fault->kind == kind;
}

}  // namespace

BatchRun::BatchRun(ServerState& state, Connection& account, Answer& answer, Inbox& inbox,
                   SessionSettings& settings)
    : objState(state), cnnAccount(account), objAnswer(answer), objInbox(inbox), objSettings(settings)
{
}

bool BatchRun::Run(const std::string& batch, Follows follows)
{
    objState.LogBatch(batch);
    const std::optional<Fault> fault = objState.faults.Take(batch);
    if (IsRun(fault, FaultKind::Drop))
        throw DroppedByOrder();
    if (IsRun(fault, FaultKind::Delay))
        objInbox.WaitInterrupted(fault->delay);
    if (objInbox.Interrupted())
        return false;
    try {
        if (IsRun(fault, FaultKind::Refuse))
            throw Refusal(fault->message);
        RunStatements(batch, fault, follows);
    } catch (const Refusal& refusal) {
        AppendError(objAnswer.Tail(), refusal.Why(), follows);
    } catch (const CancelledError&) {
        return false;
    } catch (const Error& error) {  // a type or a value that is not sent
        AppendError(objAnswer.Tail(), {kNoNumber, 16, error.what()}, follows);
    }
    return !objInbox.Interrupted();
}

void BatchRun::RunStatements(const std::string& batch, const std::optional<Fault>& fault, Follows follows)
{
    const std::string before = objSettings.database;
    std::string_view rest = batch;
    TakeSettings(rest, objSettings, objState.options);
    if (objSettings.database != before) {
        AppendChange(objAnswer.Tail(), Change::Database, objSettings.database, before);
        AppendMessage(objAnswer.Tail(),
                      {5701, 10, "Changed database context to '" + objSettings.database + "'."});
    }
    if (rest.empty()) {
        AppendDone(objAnswer.Tail(), End::Good, follows);
        return;
    }
    std::optional<OwnResult> own = objState.OrderedAnswer(rest);
    if (!own)
        own = OwnAnswer(rest, objState.options, objSettings.database);
    if (own) {
        SendOwnResult(*own, follows);
        return;
    }

    const std::int32_t skipped =
        static_cast<std::int32_t>(embedded::LineAndColumn(batch, batch.size() - rest.size()).line) - 1;
    const bool refuseLater = IsRun(fault, FaultKind::RefuseLater);
    for (Piece& piece : PiecesOf(std::string(rest), refuseLater ? Follows::More : follows)) {
        piece.line += skipped;
        if (!RunPiece(piece, fault))
            return;
    }
    if (refuseLater)
        throw Refusal(fault->message);
}

// The statements of a batch one by one; `follows` tells what is behind the last one.
std::vector<BatchRun::Piece> BatchRun::PiecesOf(const std::string& batch, Follows follows)
{
    std::vector<embedded::StatementPtr> statements;
    try {
        statements = embedded::ParseBatch(batch);
    } catch (const embedded::SqlError& error) {
        const auto line =
            static_cast<std::int32_t>(embedded::LineAndColumn(batch, error.Where().offset).line);
        throw Refusal({error.Number(), SeverityOf(error.Number()), error.what(), line});
    }

    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < statements.size(); ++i) {
        const std::size_t begin = statements[i]->place.offset;
        const bool last = i + 1 == statements.size();
        const std::size_t end = last ? batch.size() : statements[i + 1]->place.offset;
        pieces.push_back({batch.substr(begin, end - begin),
                          static_cast<std::int32_t>(embedded::LineAndColumn(batch, begin).line),
                          GivesRows(*statements[i]), last ? follows : Follows::More});
    }
    return pieces;
}

// Whether the batch goes on.
bool BatchRun::RunPiece(const Piece& piece, const std::optional<Fault>& fault)
{
    try {
        if (piece.givesRows) {
            SendRows(piece, fault);
            return !objInbox.Interrupted();
        }
        const std::int64_t changed = cnnAccount.Execute(piece.sql);
        if (IsRun(fault, FaultKind::DropInRows))
            throw DroppedByOrder();
        if (IsRun(fault, FaultKind::Remark))
            AppendMessage(objAnswer.Tail(), fault->message);
        std::optional<std::int64_t> count;
        if (changed >= 0 && objSettings.countsRows)
            count = changed;
        AppendDone(objAnswer.Tail(), End::Good, piece.follows, count);
        return true;
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError& error) {
        throw Refusal(MessageOf(error, piece.line));
    }
}

void BatchRun::SendRows(const Piece& piece, const std::optional<Fault>& fault)
{
    const auto rows = cnnAccount.OpenRecordset(piece.sql, CursorLocation::Client, CursorType::ForwardOnly,
                                               LockType::ReadOnly);
    if (rows->FieldCount() == 0) {  // of an `if exists` whose query gave no row
        AppendDone(objAnswer.Tail(), End::Good, piece.follows);
        return;
    }
    std::vector<Column> columns;
    for (int field = 0; field < rows->FieldCount(); ++field)
        columns.push_back({rows->FieldName(field), TypeOf(rows->FieldType(field))});
    AppendColumns(objAnswer.Tail(), columns);

    std::int64_t count = 0;
    std::vector<Value> values(columns.size());
    for (; !rows->Eof(); rows->MoveNext(), ++count) {
        if (IsRun(fault, FaultKind::DropInRows) && count == fault->rows)
            break;
        for (int field = 0; field < rows->FieldCount(); ++field)
            values[static_cast<std::size_t>(field)] = rows->Field(field);
        AppendRow(objAnswer.Tail(), columns, values);
        objAnswer.SendFull();
        if (objInbox.Interrupted())
            return;
    }
    if (IsRun(fault, FaultKind::DropInRows)) {
        objAnswer.SendAll();
        throw DroppedByOrder();
    }
    if (IsRun(fault, FaultKind::Remark))
        AppendMessage(objAnswer.Tail(), fault->message);
    AppendDone(objAnswer.Tail(), End::Good, piece.follows,
               objSettings.countsRows ? std::optional(count) : std::nullopt);
}

void BatchRun::SendOwnResult(const OwnResult& result, Follows follows)
{
    AppendColumns(objAnswer.Tail(), result.columns);
    for (const std::vector<Value>& row : result.rows)
        AppendRow(objAnswer.Tail(), result.columns, row);
    AppendDone(objAnswer.Tail(), End::Good, follows, static_cast<std::int64_t>(result.rows.size()));
}

}  // namespace kavelin::test::tds
