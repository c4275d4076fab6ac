// Objects of the suite around the library that are reached early-bound: texts and messages, the ledger
// library, the machine, settings, XML.
#pragma once

#include "frame/Connection.h"
#include "frame/host/HostObject.h"
#include "frame/host/LoginContext.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kavelin {

constexpr int kInformation = 64;  // icons of ShowMessage
constexpr int kWarning = 48;

// Shown texts in the language of the login.
class ResourceObject : public virtual HostObject {
  public:
    virtual void SetLogin(std::shared_ptr<LoginContext> login) = 0;
    virtual std::string GetResString(const std::string& key) = 0;
    virtual std::string GetEnumName(const std::string& type, const std::string& code) = 0;
    // The other way round: the code of a shown text. A text that is none is its own code.
    virtual std::string GetEnumCode(const std::string& type, const std::string& text) = 0;
    virtual void ShowMessage(const std::string& text, int icon) = 0;

    // A form that took its texts from here has closed.
    virtual void Unload() = 0;
};

class LedgerLogin : public virtual HostObject {
  public:
    // `passwordText` is ";PWD=" and the password.
    virtual void Initialise(const std::string& connectionText, const std::string& passwordText, bool first,
                            bool second) = 0;

    // An open connection to the account database with that login. Throws ConnectionError.
    virtual std::shared_ptr<Connection> DbConnection() = 0;
};

// Options of one accounting year.
class LedgerParams : public virtual HostObject {
  public:
    virtual std::string Year() = 0;        // whose options these are; "" before any were filled in
    virtual std::string ValueStyle() = 0;  // as the account parameter cValueStyle

    // Stands in front of the name of the inventory table where a report joins it; may be empty.
    virtual std::string InventoryQualifier() = 0;
};

class LedgerPub : public virtual HostObject {
  public:
    virtual void SetLogin(std::shared_ptr<LedgerLogin> login) = 0;
    virtual bool Reload(const std::string& first, const std::string& second) = 0;

    // First and last month of an accounting year.
    virtual std::pair<int, int> GetYearMonthRange(const std::string& year, Connection& account) = 0;

    // The accounting years of the account of a login of that year, in order.
    virtual std::vector<std::string> GetAccountYears(const std::string& year, Connection& account) = 0;

    // Fills `params` with the options of the year.
    virtual void GetAccountYearParams(LedgerLogin& login, const std::string& year, LedgerParams& params) = 0;
};

class MachineInfo : public virtual HostObject {
  public:
    // Letters, digits and "_" only, so that it can stand in a table's name.
    virtual std::string MachineName() = 0;
};

// Tells a running client from others on the same machine.
class ClientNumber : public virtual HostObject {
  public:
    virtual Value Number() = 0;  // a whole number
};

// Per-user settings.
class SettingsStore : public virtual HostObject {
  public:
    // `byDefault` if there is none.
    virtual std::string Read(const std::string& application, const std::string& section,
                             const std::string& key, const std::string& byDefault) = 0;
    virtual void Write(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& value) = 0;
};

class XmlNode : public virtual HostObject {
  public:
    virtual std::string nodeName() = 0;
    // Of the node and all below it, without the white space at both ends.
    virtual std::string text() = 0;
    virtual Value getAttribute(const std::string& name) = 0;  // null if there is none
    virtual std::vector<std::shared_ptr<XmlNode>> childNodes() = 0;
};

class XmlDocument : public virtual HostObject {
  public:
    virtual bool loadXML(const std::string& text) = 0;  // False if the text is not well formed
    virtual std::shared_ptr<XmlNode> documentElement() = 0;
};

// Sixteen bytes in the order in which they are written.
using Guid = std::array<std::uint8_t, 16>;

}  // namespace kavelin
