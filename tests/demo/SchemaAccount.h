// A new account with the schema and the rows that are written out, and without any other row.
#pragma once

#include "demo/NewAccount.h"
#include "demo/QueryRows.h"
#include "frame/Connection.h"

#include <memory>
#include <string>
#include <vector>

namespace kavelin::demo {

class SchemaAccount {
  public:
    explicit SchemaAccount(const std::string& locale = "zh-CN");

    const embedded::EmbeddedAccount& Account() const { return objAccount.Account(); }

    void Execute(const std::string& sql) { objConnection->Execute(sql); }
    // Rows as QueryRows writes them, one text a row.
    std::vector<std::string> Rows(const std::string& sql);
    // The only field of the only row.
    std::string Single(const std::string& sql);

  private:
    TestFolder objFolder;
    NewAccount objAccount;
    std::shared_ptr<Connection> objConnection;
};

}  // namespace kavelin::demo
