// A dialog on a recording host: its fields, the callbacks, and what they change.
#pragma once

#include "filter/clsFilterControl.h"
#include "support/RecordingHost.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test {

using Changes = std::vector<std::string>;

class Dialog {
  public:
    Dialog(RecordingHost& host, std::string_view identity, const std::vector<FakeField>& fields);

    // The callbacks; each forgets the events before it.
    void Open();
    void Change(const std::string& key);
    bool Click();             // whether the dialog stays open
    std::string FirstView();  // what stands in ReturnViewClass, "untouched" at first
    std::string ViewAfter(const std::string& key);

    // The user types a value, which no callback sees.
    void Type(const std::string& key, const Value& from, const Value& to = Value());

    FakeFilter& Filter() { return *objFilter; }

    // What the latest callback changed or showed, in order: "cNo.varValue = 5", "cNo.ListSource = a,b",
    // "SetFieldLocked cNo, True", "ContextArgs.Add 1, ABC", "Beep", "ShowMessage <key>, 64".
    Changes Made() const;

  private:
    RecordingHost& objHost;
    std::shared_ptr<FakeFilter> objFilter;
    clsFilterControl objControl;
};

// What the opening does to the dialog's only field, without what it does to every dialog.
Changes OpeningOf(RecordingHost& host, std::string_view identity, const FakeField& field);

// What it does to every dialog.
Changes OpeningOfAll(RecordingHost& host, std::string_view identity);

struct FieldCase {
    std::string_view identity;
    FakeField field;
    Changes changes;  // of the opening
};

void ExpectChanges(RecordingHost& host, const std::vector<FieldCase>& cases);

}  // namespace kavelin::test
