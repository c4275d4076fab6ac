#include "support/tds/ServerState.h"

#include <utility>

namespace kavelin::test::tds {

void ServerState::Answer(std::string_view batch, OwnResult result)
{
    const std::lock_guard lock(objMutex);
    dicAnswers[InOneLine(batch)] = std::move(result);
}

std::optional<OwnResult> ServerState::OrderedAnswer(std::string_view batch)
{
    const std::lock_guard lock(objMutex);
    const auto found = dicAnswers.find(InOneLine(batch));
    return found == dicAnswers.end() ? std::nullopt : std::optional(found->second);
}

void ServerState::LogBatch(std::string_view batch)
{
    const std::lock_guard lock(objMutex);
    lstBatches.emplace_back(batch);
}

void ServerState::LogLogin(const LoginMessage& login)
{
    const std::lock_guard lock(objMutex);
    lstLogins.push_back(login);
}

std::vector<std::string> ServerState::Batches()
{
    const std::lock_guard lock(objMutex);
    return lstBatches;
}

std::vector<LoginMessage> ServerState::Logins()
{
    const std::lock_guard lock(objMutex);
    return lstLogins;
}

}  // namespace kavelin::test::tds
