// An open account that answers statements as a test tells it.
#pragma once

#include "frame/Connection.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "support/ScriptedRecordset.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kavelin::host {

inline DatabaseError::Details ErrorOf(std::int32_t number, std::string message, std::string state = "")
{
    DatabaseError::Details details;
    details.strMessage = std::move(message);
    details.lngNumber = number;
    details.strSqlState = std::move(state);
    return details;
}

class FakeAccount : public Connection {
  public:
    // What a statement that has the text in it gives: rows, or an error. The longest text counts. Everything
    // else gives no rows of no fields.
    void Gives(const std::string& text, test::Rows rows) { dicAnswers[text] = std::move(rows); }
    void Fails(const std::string& text, DatabaseError::Details details)
    {
        dicAnswers[text] = std::move(details);
    }
    // The same with the connection lost.
    void IsLostAt(const std::string& text)
    {
        dicAnswers[text] = ErrorOf(0, "The connection to the server was lost.", "08S01");
    }

    const std::vector<std::string>& Sent() const { return lstSent; }

    void SetCursorLocation(CursorLocation) override {}
    void SetConnectionString(const std::string&) override {}
    void SetConnectionTimeout(std::int32_t) override {}
    void SetCommandTimeout(std::int32_t) override {}
    void Open(const std::string&, const std::string&, std::int32_t) override
    {
        enmState = ConnectionState::Open;
    }
    void Close() override { enmState = ConnectionState::Closed; }
    ConnectionState State() const override { return enmState; }
    std::int64_t Execute(const std::string& sql) override
    {
        Answer(sql);
        return -1;
    }
    std::unique_ptr<Recordset> OpenRecordset(const std::string& sql, CursorLocation, CursorType type,
                                             LockType) override
    {
        return std::make_unique<test::ScriptedRecordset>(Answer(sql), type);
    }
    void Cancel() noexcept override {}

  private:
    test::Rows Answer(const std::string& sql)
    {
        lstSent.push_back(sql);
        const std::variant<test::Rows, DatabaseError::Details>* found = nullptr;
        std::size_t length = 0;
        for (const auto& [text, answer] : dicAnswers)
            if (sql.find(text) != sql.npos && text.size() >= length) {
                found = &answer;
                length = text.size();
            }
        if (!found)
            return {};
        if (const auto* details = std::get_if<DatabaseError::Details>(found)) {
            if (details->strSqlState == "08S01")
                enmState = ConnectionState::Closed;
            throw DatabaseError(*details);
        }
        return std::get<test::Rows>(*found);
    }

    std::map<std::string, std::variant<test::Rows, DatabaseError::Details>> dicAnswers;
    std::vector<std::string> lstSent;
    ConnectionState enmState = ConnectionState::Open;
};

}  // namespace kavelin::host
