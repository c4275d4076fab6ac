// Two accounts in a folder of a test's own, and copies between them.
#pragma once

#include "support/TestFolder.h"

#include "embedded/EmbeddedAccount.h"
#include "frame/Connection.h"
#include "snapshot/AccountCopy.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace kavelin::snapshot {

// An account that is open while the object lives. It is made with all tables, or, by Without, as a bare file.
class OpenAccount {
  public:
    enum class Made { WithSchema, Bare, Already };

    explicit OpenAccount(const std::filesystem::path& path, Made made = Made::WithSchema);

    Connection& Account() { return *cnnAccount; }
    std::shared_ptr<Connection> Shared() { return cnnAccount; }
    const std::shared_ptr<embedded::EmbeddedAccount>& Embedded() const { return objAccount; }

    void Run(const std::string& sql) { cnnAccount->Execute(sql); }

    // The rows of a query, fields between "|", a line a row; null is "NULL".
    std::string Rows(const std::string& sql);

    std::unique_ptr<CopyTarget> Target() { return EmbeddedTarget(cnnAccount, objAccount); }

  private:
    std::shared_ptr<embedded::EmbeddedAccount> objAccount;
    std::shared_ptr<Connection> cnnAccount;
};

// Plans and copies.
CopyResult Copy(Connection& source, CopyTarget& target, const CopyOptions& options = {});

// The message with which the copy is refused or fails.
std::string Refusal(Connection& source, CopyTarget& target, const CopyOptions& options = {});

// Rows of the kinds that go wrong where texts, numbers or dates are not handed on as they are.
void FillWithOddValues(Connection& account);

// Fails unless every table of the schema has the same values in both, in the order of its key. A null is no
// empty text, and a float has the same bits.
void ExpectSameTables(Connection& source, Connection& target);

}  // namespace kavelin::snapshot
