// What a server is to be.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kavelin::test::tds {

struct Login {
    std::string user;
    std::string password;
};

struct ServerOptions {
    std::string account;                   // path of the embedded account that it serves
    std::string locale = "zh-CN";          // what the account's dbo.UDF_GetLocaleID() answers
    std::string database = "Account_001";  // the account's name; beside it stand VosSystem, tempdb, master
    std::vector<Login> logins = {{"kavelin", "Secret;1"}};
    std::string version = "10.50.1600.1";
    std::string edition = "Enterprise Edition";
    int compatibilityLevel = 100;
    std::string collation = "Chinese_PRC_CI_AS";
    std::string tempdbCollation = "Chinese_PRC_CI_AS";
    bool silent = false;     // takes connections and says nothing on them
    std::uint16_t port = 0;  // 0: any free one
};

}  // namespace kavelin::test::tds
