#include "host/SuiteViewers.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "frame/Value.h"
#include "frame/host/ConnectionObject.h"
#include "frame/host/SuiteObjects.h"
#include "host/NamedObjects.h"
#include "host/ViewerRows.h"

#include <stdexcept>

namespace kavelin::host {

namespace {

[[noreturn]] void ThrowNoMember(std::string_view member)
{
    throw Error("The viewer has no member " + std::string(member) + ".");
}

std::string TextAt(const std::vector<Variant>& arguments, std::size_t position)
{
    return ToText(ValueOf(arguments.at(position), "an argument of the viewer"));
}

// Properties that are kept, and calls that show rows.
class Viewer : public LateBag {
  public:
    explicit Viewer(const ViewerSettings& settings) : objSettings(settings) {}

    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        try {
            Open(member, arguments);
            return {};
        } catch (const Error& error) {
            Tell(error.what());
            throw;
        } catch (const std::out_of_range&) {
            ThrowNoMember(member);  // that takes so few arguments
        }
    }

  protected:
    virtual void Open(std::string_view member, const std::vector<Variant>& arguments) = 0;

    const ViewerSettings& Settings() const { return objSettings; }

    void Show(const std::vector<ViewerRows>& found, const std::string& what, const LocalText& missing)
    {
        if (found.empty())
            Tell(missing.In(objSettings.language) + what);
        for (const ViewerRows& rows : found)
            if (objSettings.onShow)
                objSettings.onShow(rows.title.In(objSettings.language) + " " + what, *rows.rows);
    }

    void Tell(const std::string& text) const
    {
        if (objSettings.onMessage)
            objSettings.onMessage({text, kWarning});
    }

  private:
    ViewerSettings objSettings;
};

const LocalText kNoDocument = {"账套中没有单据 ", "The account has no document "};
const LocalText kNoKey = {"该行没有指明单据。", "The row names no document."};

// Corvane.clsUniVch: documents.
class DocumentViewer : public Viewer {
  public:
    using Viewer::Viewer;

  protected:
    void Open(std::string_view member, const std::vector<Variant>& arguments) override
    {
        if (EqualsNoCase(member, "Init"))
            return;
        Connection& account = *ObjectOf<ConnectionObject>(arguments.at(0), "connection")->Connection();
        if (EqualsNoCase(member, "ShowVoucher"))
            Show(account, TextAt(arguments, 2), TextAt(arguments, 3));
        else if (EqualsNoCase(member, "ShowCostJustVouch"))
            ShowNumber(account, "22", TextAt(arguments, 1));
        else if (EqualsNoCase(member, "ShowDifVouchs"))
            ShowNumber(account, "35", TextAt(arguments, 3));
        else
            ThrowNoMember(member);
    }

  private:
    // Adjustments come by their number, settlements by the row of the ledger, all others by their identity.
    void Show(Connection& account, const std::string& vouType, const std::string& key)
    {
        if (vouType == "20" || vouType == "21")
            ShowBy(account, vouType, DocumentKey::Number, key);
        else if (vouType == "24" || vouType == "30")
            ShowBy(account, vouType, DocumentKey::LedgerRow, key);
        else
            ShowBy(account, vouType, DocumentKey::Identity, key);
    }

    void ShowNumber(Connection& account, const std::string& vouType, const std::string& number)
    {
        ShowBy(account, vouType, DocumentKey::Number, number);
    }

    void ShowBy(Connection& account, const std::string& vouType, DocumentKey by, const std::string& key)
    {
        if (key.empty())  // an opening, a total, or a row of a report that keeps no identity
            Tell(kNoKey.In(Settings().language));
        else
            Viewer::Show(FindDocument(account, vouType, by, key), vouType + " " + key, kNoDocument);
    }
};

// Tessel.clsPub: what the ledger's vouchers share. Keeps the ledger login that it is prepared with.
class LedgerPublic : public LateBag {
  public:
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        if (!EqualsNoCase(member, "InitPubs2") || arguments.size() != 8)
            ThrowNoMember(member);
        objLogin = ObjectOf<LedgerLogin>(arguments[2], "ledger login");
        return {};
    }

    Connection& Account() const
    {
        if (!objLogin)
            throw Error("The ledger was not prepared.");
        return *objLogin->DbConnection();
    }

  private:
    std::shared_ptr<LedgerLogin> objLogin;
};

// Brannic.clsPZ: accounting vouchers.
class VoucherViewer : public Viewer {
  public:
    using Viewer::Viewer;

  protected:
    void Open(std::string_view member, const std::vector<Variant>& arguments) override
    {
        if (!EqualsNoCase(member, "StartUpPz"))
            ThrowNoMember(member);
        const auto ledger = ObjectOf<LedgerPublic>(Get("zzSys"), "zzSys");
        const std::string id = TextAt(arguments, 7);
        const std::int32_t year = ToInt32(ValueOf(arguments.at(8), "year"));
        Show(FindVoucher(ledger->Account(), id, year), id,
             {"账套中没有凭证 ", "The account has no accounting voucher "});
    }
};

// VosPortalProxy.Business: the portal. Of its lists it knows those of documents that no viewer shows.
class Portal : public Viewer {
  public:
    using Viewer::Viewer;

  protected:
    // The command is "NAME:VALUE&&&NAME:VALUE..."; its CmdLine names a document's number and a list, each behind
    // a tab.
    void Open(std::string_view member, const std::vector<Variant>& arguments) override
    {
        if (!EqualsNoCase(member, "RunCommand"))
            ThrowNoMember(member);
        constexpr std::string_view kLine = "CmdLine:";
        for (const std::string& part : Split(TextAt(arguments, 0), "&&&"))
            if (part.starts_with(kLine))
                return OpenList(Split(part.substr(kLine.size()), "\t"));
        throw Error("The portal knows no command without a command line.");
    }

  private:
    struct List {
        std::string_view name, vouType;
    };
    static constexpr List kLists[] = {{"V_IA_CreditDifVouchList", "66"}};

    void OpenList(const std::vector<std::string>& line)
    {
        const std::string name = line.size() == 3 ? line[2] : "";
        for (const List& list : kLists)
            if (EqualsNoCase(name, list.name))
                return ShowNumber(std::string(list.vouType), line[1]);
        throw Error("The portal has no list \"" + name + "\".");
    }

    void ShowNumber(const std::string& vouType, const std::string& number)
    {
        if (!Settings().openAccount)
            throw Error("The portal has no account.");
        const auto account = Settings().openAccount();
        Show(FindDocument(*account, vouType, DocumentKey::Number, number), vouType + " " + number,
             kNoDocument);
    }
};

}  // namespace

std::shared_ptr<LateBound> CreateSuiteObject(const std::string& name, const ViewerSettings& settings)
{
    if (EqualsNoCase(name, "Corvane.clsUniVch"))
        return std::make_shared<DocumentViewer>(settings);
    if (EqualsNoCase(name, "Tessel.clsPub"))
        return std::make_shared<LedgerPublic>();
    if (EqualsNoCase(name, "Brannic.clsPZ"))
        return std::make_shared<VoucherViewer>(settings);
    if (EqualsNoCase(name, "VosPortalProxy.Business"))
        return std::make_shared<Portal>(settings);
    return nullptr;
}

}  // namespace kavelin::host
