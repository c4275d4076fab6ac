// A small embedded account for tests of the C interface.
#pragma once

#include "capi/CHost.h"

#include <filesystem>
#include <string>

namespace kavelin::test {

class AccountApi : public CApi {
  protected:
    // Makes the account without tables, and opens it with a connection of the library's.
    AccountApi();
    // Ends the thread, and then the account.
    ~AccountApi() override;

    const std::string& ConnectionText() const { return strText; }
    kavelin_object Connection() const { return objConnection; }

    void Run(const char* statement);
    // Cells between commas, rows between blanks; nothing for a null.
    std::string Query(const char* select);

  private:
    std::filesystem::path objFolder;
    std::string strText;
    kavelin_object objConnection = 0;
};

}  // namespace kavelin::test
