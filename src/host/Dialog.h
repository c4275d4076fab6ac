// The filter dialog of a report, from its opening to OK, as a person at a screen would go through it.
//
//   Dialog dialog(session, report);   // defaults, lists, lookups and locks
//   dialog.Set(input);                // the user's values one by one, each followed by what depends on it
//   dialog.Accept();                  // OK
//   ... dialog.Filter() is what the report gets
#pragma once

#include "frame/host/HostObject.h"
#include "host/FilterInput.h"
#include "host/HostFilter.h"
#include "host/LookupSelect.h"
#include "host/Reports.h"
#include "host/Session.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

// A page of what a field offers.
struct OfferedRows {
    std::vector<std::string> captions;
    std::vector<std::vector<std::string>> rows;  // as texts; the first column is what the field takes
    bool more = false;                           // behind this page
};

// Serves the library of its thread while it lives (see LibraryUse); the report runs within its life.
class Dialog {
  public:
    // Opens the dialog. Throws what the opening throws: DatabaseError, ConnectionError, and Error where the
    // account lacks something that the dialog must offer.
    Dialog(Session& session, const Report& report);

    // The same with callbacks of `control` in place of those of the library; null: none.
    Dialog(Session& session, const Report& report, std::shared_ptr<LateBound> control);

    // Takes the values that the user gave, in the template's order; every other field keeps what the dialog
    // put into it. Throws UsageError for a locked field, for a value that the field's list doesn't offer (not
    // under the legacy policy) or that a callback can't read, such as an empty year, and if a later value's
    // rule took an earlier one away.
    void Set(const FilterInput& input);

    // OK. Throws UsageError if a mandatory value is missing, and FilterRefused if the dialog's check says no;
    // the check has then shown why. Months that the report doesn't read are dates from here on.
    void Accept();

    const std::shared_ptr<HostFilter>& Filter() const { return objFilter; }

    // The name of the report's view that the dialog asks for; empty for reports without views.
    const std::string& View() const { return strView; }

    // What the field of that key offers: entries of its list, or rows of its lookup, that begin with `text`
    // by their code or hold it in their name; page 1 is the first. The template must have the field. Throws
    // UsageError if it offers nothing.
    OfferedRows Offer(const std::string& key, std::string_view text, std::size_t page, std::size_t size);

    // How many rows the lookup of the item has, which must have one.
    std::int64_t LookupCount(const HostFilterItem& item);

  private:
    void Open();
    void SetField(const FieldInput& given, ValuePolicy policy);
    void TellChange(const std::string& key);
    void RequireMandatory() const;
    LookupSelect LookupOf(const HostFilterItem& item) const;
    OfferedRows OfferOfLookup(const HostFilterItem& item, std::string_view text, std::size_t skipped,
                              std::size_t size);

    Session& objSession;
    const Report& objReport;
    LibraryUse objUse;
    const FilterTemplate& objTemplate;
    std::shared_ptr<LateBound> objControl;
    std::shared_ptr<HostFilter> objFilter;
    std::string strView;
    std::vector<std::string> lstGiven;  // keys that the user gave a value
};

}  // namespace kavelin::host
