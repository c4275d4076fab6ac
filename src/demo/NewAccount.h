// An account that is being made: its files go again unless they are kept.
#pragma once

#include "embedded/EmbeddedAccount.h"
#include "frame/Connection.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace kavelin::demo {

// An open connection to an embedded account, whose statements are logged where KAVELIN_SQL_LOG says. Throws
// ConnectionError.
std::shared_ptr<Connection> ConnectTo(const std::filesystem::path& account);

// Lets `make` make an account at the path that it is given, `account` with `.part` behind it, and then gives the
// files their own names: a program that ends meanwhile leaves nothing that looks like an account, and what such
// a one left is taken away. Throws ConnectionError if one of the files is there already, and what `make` throws.
void MakeWhole(const std::filesystem::path& account,
               const std::function<void(const std::filesystem::path&)>& make);

class NewAccount {
  public:
    // Makes the files, with the tables of the schema. Throws ConnectionError if one of the files is there.
    explicit NewAccount(const std::filesystem::path& account);
    ~NewAccount();
    NewAccount(const NewAccount&) = delete;
    NewAccount& operator=(const NewAccount&) = delete;

    const embedded::EmbeddedAccount& Account() const { return *objAccount; }

    // Writes what is still in memory. Throws DatabaseError.
    void Keep();

  private:
    // Takes the files away when it ends; the account, declared behind it, is closed by then.
    struct Files {
        explicit Files(std::string path);
        ~Files();

        std::string account;
        bool kept = false;
    };

    Files objFiles;
    std::shared_ptr<embedded::EmbeddedAccount> objAccount;
};

}  // namespace kavelin::demo
