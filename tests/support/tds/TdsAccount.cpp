#include "support/tds/TdsAccount.h"

#include "embedded/EmbeddedAccount.h"

namespace kavelin::test::tds {

TdsAccount::TdsAccount(ServerOptions options)
{
    options.account = (objFolder / "account.kavelin").string();
    embedded::CreateAccount(options.account);
    objServer = std::make_unique<TdsServer>(options);
    cnnInside = embedded::NewConnection();
    cnnInside->SetConnectionString("Embedded Account=" + options.account + ";Locale=" + options.locale);
    cnnInside->Open("", "", -1);
}

TdsAccount::~TdsAccount() = default;

std::string TdsAccount::ProviderText() const
{
    const ServerOptions& options = objServer->Options();
    return "Provider=SQLOLEDB.1;Data Source=tcp:127.0.0.1," + std::to_string(objServer->Port()) +
           ";Initial Catalog=" + options.database + ";User ID=" + options.logins.front().user +
           ";Password=\"" + options.logins.front().password + "\"";
}

std::string TdsAccount::OdbcText() const
{
    const ServerOptions& options = objServer->Options();
    return "Driver=FreeTDS;Server=127.0.0.1;Port=" + std::to_string(objServer->Port()) +
           ";Database=" + options.database + ";UID=" + options.logins.front().user + ";PWD={" +
           options.logins.front().password + "};TDS_Version=7.4;ClientCharset=UTF-8";
}

}  // namespace kavelin::test::tds
