#include "support/tds/Session.h"

#include "embedded/EmbeddedAccount.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "support/tds/BatchRun.h"

#include <algorithm>
#include <thread>

namespace kavelin::test::tds {

namespace {

constexpr std::uint32_t kSmallestPacket = 512;
constexpr std::uint32_t kLargestPacket = 32767;

constexpr std::int32_t kLoginFailed = 18456;
constexpr int kLoginSeverity = 14;

// Behind the heads that stand before a batch or a call: their length comes first and counts itself.
std::string_view WithoutHeads(std::string_view content)
{
    const std::uint32_t heads = Reader(content).Take<std::uint32_t>();
    Reader reader(content);
    reader.Take(heads);
    return reader.Rest();
}

std::int32_t HandleIn(const ProcedureCall& call)
{
    const auto* handle = call.arguments.empty() ? nullptr : call.arguments[0].As<std::int64_t>();
    return handle ? static_cast<std::int32_t>(*handle) : 0;
}

}  // namespace

Session::Session(int handle, ServerState& state)
    : objState(state), objSocket(handle), objAnswer(objSocket, kFirstPacketSize)
{
}

void Session::Run()
{
    try {
        if (Welcome())
            Converse();
    } catch (const ProtocolError&) {
        // The client is gone or speaks something else: either way the conversation is over.
    }
    objSocket.Drop();
}

bool Session::Welcome()
{
    for (;;) {
        const Message message = objSocket.Read();
        if (objState.options.silent)
            continue;
        if (message.type == MessageType::Prelogin) {
            objAnswer.Tail() += PreloginAnswer();
            objAnswer.Finish();
        } else if (message.type == MessageType::Login) {
            return LogIn(ReadLogin(message.content));
        } else {
            return false;
        }
    }
}

bool Session::LogIn(const LoginMessage& login)
{
    objState.LogLogin(login);
    const ServerOptions& options = objState.options;
    if (login.version < kVersion72)
        return false;
    const bool known = std::ranges::any_of(options.logins, [&](const Login& entry) {
        return EqualsNoCase(entry.user, login.user) && entry.password == login.password;
    });
    if (!known) {
        RefuseLogin(login, kLoginFailed, kLoginSeverity, "Login failed for user '" + login.user + "'.");
        return false;
    }
    if (!login.database.empty() && !HasDatabase(options, login.database)) {
        RefuseLogin(
            login, 4060, 11,
            "Cannot open database \"" + login.database + "\" requested by the login. The login failed.");
        return false;
    }

    objSettings.database = login.database.empty() ? options.database : login.database;
    try {
        OpenAccount();
    } catch (const ConnectionError& error) {
        RefuseLogin(login, 4064, 11, error.what());
        return false;
    }
    const std::uint32_t packetSize = std::clamp(login.packetSize, kSmallestPacket, kLargestPacket);
    Bytes& tail = objAnswer.Tail();
    AppendChange(tail, Change::Database, objSettings.database, "master");
    AppendMessage(tail, {5701, 10, "Changed database context to '" + objSettings.database + "'."});
    AppendCollation(tail);
    AppendChange(tail, Change::Language, "us_english", "");
    AppendMessage(tail, {5703, 10, "Changed language setting to us_english."});
    AppendLoginAccepted(tail, std::min(login.version, kVersion74), options.version);
    AppendChange(tail, Change::PacketSize, std::to_string(packetSize), std::to_string(kFirstPacketSize));
    AppendDone(tail, End::Good, Follows::Nothing);
    objAnswer.Finish();
    objAnswer.SetPacketSize(packetSize);
    return true;
}

void Session::RefuseLogin(const LoginMessage& login, std::int32_t number, int severity,
                          const std::string& text)
{
    Bytes& tail = objAnswer.Tail();
    AppendMessage(tail, {number, severity, text});
    if (number != kLoginFailed)
        AppendMessage(tail, {kLoginFailed, kLoginSeverity, "Login failed for user '" + login.user + "'."});
    AppendDone(tail, End::Failed, Follows::Nothing);
    objAnswer.Finish();
}

void Session::OpenAccount()
{
    cnnAccount = embedded::NewConnection();
    cnnAccount->SetConnectionString("Embedded Account=\"" + objState.options.account +
                                    "\";Locale=" + objState.options.locale);
    cnnAccount->Open("", "", -1);
}

void Session::ReadOn()
{
    try {
        for (;;) {
            Message message = objSocket.Read();
            const bool stop = message.type == MessageType::Attention;
            objInbox.Push(std::move(message));
            if (stop)
                cnnAccount->Cancel();
        }
    } catch (const ProtocolError&) {
        objInbox.End();
        cnnAccount->Cancel();
    }
}

void Session::Converse()
{
    std::thread reader([this] { ReadOn(); });
    try {
        while (const std::optional<Message> message = objInbox.Pop())
            AnswerMessage(*message);
    } catch (const ProtocolError&) {
        // As in Run; the reader must end first.
    }
    objSocket.Drop();
    reader.join();
    cnnAccount.reset();
}

void Session::AnswerMessage(const Message& message)
{
    switch (message.type) {
        case MessageType::Batch: AnswerBatch(FromUtf16(WithoutHeads(message.content))); return;
        case MessageType::Rpc: AnswerCall(ReadCall(WithoutHeads(message.content))); return;
        case MessageType::Attention:
            AppendDone(objAnswer.Tail(), End::Cancelled, Follows::Nothing);
            objAnswer.Finish();
            return;
        default:
            AppendError(objAnswer.Tail(),
                        {40000, 16, "This server takes batches and prepared statements only."});
            objAnswer.Finish();
    }
}

void Session::AnswerBatch(const std::string& batch)
{
    if (RunBatch(batch, Follows::Nothing))
        objAnswer.Finish();
}

void Session::AnswerCall(const ProcedureCall& call)
{
    const auto textAt = [&](std::size_t position) {
        const auto* text =
            position < call.arguments.size() ? call.arguments[position].As<std::string>() : nullptr;
        return text ? *text : std::string();
    };
    std::size_t taken = 1;  // arguments that are no values for the statement
    std::string batch;
    switch (call.procedure) {
        case Procedure::Prepare:
        case Procedure::PrepareAndExecute:
            taken = call.procedure == Procedure::Prepare ? 4 : 3;
            batch = textAt(2);
            dicPrepared[++lngLastHandle] = batch;
            AppendHandle(objAnswer.Tail(), lngLastHandle);
            if (call.procedure == Procedure::Prepare)
                batch.clear();
            break;
        case Procedure::Execute: batch = dicPrepared[HandleIn(call)]; break;
        case Procedure::Unprepare: dicPrepared.erase(HandleIn(call)); break;
        case Procedure::ExecuteSql: batch = textAt(0); break;
        default:
            AppendError(objAnswer.Tail(), {2812, 16, "Could not find stored procedure '" + call.name + "'."});
            objAnswer.Finish();
            return;
    }
    if (call.arguments.size() > taken) {
        AppendError(objAnswer.Tail(),
                    {8144, 16, "This server takes prepared statements without parameters only."});
        objAnswer.Finish();
        return;
    }
    if (!batch.empty() && !RunBatch(batch, Follows::More))
        return;
    AppendProcedureDone(objAnswer.Tail());
    objAnswer.Finish();
}

bool Session::RunBatch(const std::string& batch, Follows follows)
{
    return BatchRun(objState, *cnnAccount, objAnswer, objInbox, objSettings).Run(batch, follows);
}

}  // namespace kavelin::test::tds
