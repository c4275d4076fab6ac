// What the sessions of a server share: its options, what a test ordered, and what came.
#pragma once

#include "frame/Text.h"
#include "support/tds/Faults.h"
#include "support/tds/LoginMessage.h"
#include "support/tds/OwnAnswers.h"
#include "support/tds/ServerOptions.h"

#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test::tds {

struct ServerState {
    ServerOptions options;
    Faults faults;

    void Answer(std::string_view batch, OwnResult result);
    std::optional<OwnResult> OrderedAnswer(std::string_view batch);
    void LogBatch(std::string_view batch);
    void LogLogin(const LoginMessage& login);
    std::vector<std::string> Batches();
    std::vector<LoginMessage> Logins();

  private:
    std::mutex objMutex;
    std::map<std::string, OwnResult, LessNoCase> dicAnswers;  // by the batch in one line
    std::vector<std::string> lstBatches;
    std::vector<LoginMessage> lstLogins;
};

}  // namespace kavelin::test::tds
