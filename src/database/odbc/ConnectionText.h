// The text that names a server, in the form of the original provider or in ODBC's own:
//
//   Provider=...;Data Source=tcp:host,1433;Initial Catalog=Books;User ID=sa;Password="p;w"
//   Driver={ODBC Driver 18 for SQL Server};Server=host;Database=Books;UID=sa;PWD={p;w}
//   DSN=books
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::odbc {

// What a key means, under whichever of its names it comes.
enum class Meaning {
    Driver,
    DataSourceName,
    FileDataSourceName,
    Provider,
    Server,
    Port,
    Database,
    User,
    Password,
    IntegratedSecurity,
    ConnectTimeout,
    Encrypt,
    TrustServerCertificate,
    ApplicationName,
    WorkstationName,
    Language,
};

class ConnectionText {
  public:
    struct Part {
        std::string key;      // as it came, without blanks at its ends
        std::string value;    // without quotes
        std::string written;  // the whole part, as it came
        std::optional<Meaning> meaning;
    };

    // Keys in any case and order, blanks around keys and values left out, empty parts read over. A value may
    // stand in {}, with } doubled inside, and in the provider's form also in ' or " with the quote doubled.
    // Throws ConnectionError for a text that is no such list; neither values nor unknown keys stand in the
    // message.
    static ConnectionText Parse(std::string_view text);

    // ODBC's own form: it names a driver or a data source.
    bool IsOdbc() const;

    // The value of the last part with that meaning; empty if there is none.
    std::string Get(Meaning meaning) const;

    const std::vector<Part>& Parts() const { return lstParts; }

  private:
    std::vector<Part> lstParts;
};

// Whether the text is for this adapter: it names a provider, a server, a driver or a data source, and no
// embedded account. Never throws.
bool NamesServer(std::string_view text);

// The password in the text; empty if there is none, or if the text cannot be read.
std::string PasswordOf(std::string_view text);

// `yes`, `true`, `1` and `SSPI`, and the words that demand encryption, in any case.
bool MeansYes(std::string_view value);

}  // namespace kavelin::odbc
