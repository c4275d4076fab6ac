#include "database/odbc/OdbcText.h"

#include "database/odbc/AdapterErrors.h"
#include "database/odbc/ServerAddress.h"
#include "frame/Text.h"

namespace kavelin::odbc {

namespace {

// Builds `key=value;key=value;`. FreeTDS misreads a last value in braces without the semicolon.
class OdbcList {
  public:
    explicit OdbcList(DriverKind driver) : enmDriver(driver) {}

    void Add(std::string_view key, std::string_view value)
    {
        AddWritten(std::string(key) + "=" + OdbcValue(value, enmDriver));
    }

    void AddUnlessEmpty(std::string_view key, std::string_view value)
    {
        if (!value.empty())
            Add(key, value);
    }

    void AddWritten(std::string_view part)
    {
        strText += part;
        strText += ';';
    }

    const std::string& Text() const { return strText; }

  private:
    DriverKind enmDriver;
    std::string strText;
};

struct Login {
    std::string user;
    std::string password;
    bool integrated = false;  // the operating system's user; no name, no password
};

void AddLogin(OdbcList& list, const Login& login)
{
    if (login.integrated) {
        list.Add("Trusted_Connection", "Yes");
        return;
    }
    list.AddUnlessEmpty("UID", login.user);
    list.AddUnlessEmpty("PWD", login.password);
}

// What the provider takes as host, instance and port in one value.
std::string ServerWithInstance(const ServerAddress& address)
{
    const bool byInstance = !address.instance.empty() && address.port == 0;
    return address.host + (byInstance ? "\\" + address.instance : "");
}

void AddForFreeTds(OdbcList& list, const ConnectionText& text, const ServerAddress& address)
{
    constexpr int kUsualPort = 1433;
    list.Add("Server", ServerWithInstance(address));
    if (address.port != 0 || address.instance.empty())
        list.Add("Port", std::to_string(address.port != 0 ? address.port : kUsualPort));
    list.Add("TDS_Version", "7.4");
    list.Add("ClientCharset", "UTF-8");
    // Else the server cuts long texts, or a file of FreeTDS's settings does.
    list.Add("TextSize", "2147483647");
    if (const std::string encrypt = text.Get(Meaning::Encrypt); MeansYes(encrypt))
        list.Add("Encryption", EqualsNoCase(encrypt, "strict") ? "strict" : "require");
}

void AddForVendor(OdbcList& list, const ConnectionText& text, const ServerAddress& address)
{
    const std::string port = address.port != 0 ? "," + std::to_string(address.port) : "";
    list.Add("Server", ServerWithInstance(address) + port);
    // The provider encrypts where it is asked to; newer drivers would do it unasked, and refuse the
    // certificate that a server makes for itself.
    const std::string encrypt = text.Get(Meaning::Encrypt);
    list.Add("Encrypt", EqualsNoCase(encrypt, "strict") ? "strict" : MeansYes(encrypt) ? "yes" : "no");
    if (MeansYes(text.Get(Meaning::TrustServerCertificate)))
        list.Add("TrustServerCertificate", "yes");
}

std::string FromProviderForm(const ConnectionText& text, Login login, const DriverChoice& driver)
{
    ServerAddress address = ParseServer(text.Get(Meaning::Server));
    if (const std::string port = text.Get(Meaning::Port); !port.empty() && address.port == 0)
        address = ParseServer(text.Get(Meaning::Server) + "," + port);

    OdbcList list(driver.kind);
    list.AddWritten("Driver={" + ReplaceAll(driver.name, "}", "}}") + "}");
    if (driver.kind == DriverKind::FreeTds)
        AddForFreeTds(list, text, address);
    else
        AddForVendor(list, text, address);
    list.AddUnlessEmpty("Database", text.Get(Meaning::Database));
    AddLogin(list, login);
    list.AddUnlessEmpty("APP", text.Get(Meaning::ApplicationName));
    list.AddUnlessEmpty("WSID", text.Get(Meaning::WorkstationName));
    list.AddUnlessEmpty("Language", text.Get(Meaning::Language));
    return list.Text();
}

}  // namespace

std::string OdbcText(const ConnectionText& text, std::string_view user, std::string_view password,
                     const DriverChoice& driver)
{
    if (text.IsOdbc()) {
        OdbcList list(DriverNamed(text.Get(Meaning::Driver)).kind);
        for (const ConnectionText::Part& part : text.Parts()) {
            const bool replaced = (part.meaning == Meaning::User && !user.empty()) ||
                                  (part.meaning == Meaning::Password && !password.empty());
            if (!replaced)
                list.AddWritten(part.written);
        }
        list.AddUnlessEmpty("UID", user);
        list.AddUnlessEmpty("PWD", password);
        return list.Text();
    }

    Login login;
    login.user = user.empty() ? text.Get(Meaning::User) : std::string(user);
    login.password = password.empty() ? text.Get(Meaning::Password) : std::string(password);
    login.integrated = user.empty() && MeansYes(text.Get(Meaning::IntegratedSecurity));
    return FromProviderForm(text, std::move(login), driver);
}

std::string OdbcValue(std::string_view value, DriverKind driver)
{
    if (value.find_first_of(";{}'\"") == std::string_view::npos && Trim(value) == value)
        return std::string(value);
    if (driver != DriverKind::FreeTds)
        return "{" + ReplaceAll(value, "}", "}}") + "}";
    if (value.find("};") != std::string_view::npos)
        throw NotConnected("FreeTDS takes no value with '};' in it. The vendor's driver does.");
    return "{" + std::string(value) + "}";
}

}  // namespace kavelin::odbc
