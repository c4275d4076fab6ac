// What a host's filter dialog calls while a user prepares a report.
//
// One class serves the dialogs of all reports; the filter's FilterID tells which is meant (FilterDispatch.h).
// A filter whose identity is not known passes through every callback unchanged.
//
// A host makes one object a dialog and calls CallBack_FilterInit first: it opens the connection that the other
// callbacks use. No callback handles an error: what was changed before it stays changed.
#pragma once

#include "filter/DialogState.h"
#include "frame/Value.h"
#include "frame/host/ReportFilterObject.h"

#include <string>

namespace kavelin {

class clsFilterControl {
  public:
    // The dialog opens: connects to the account of the filter's login and fills the fields. Gives nothing.
    Value CallBack_FilterInit(ReportFilterObject& objFilter);

    // The field `sKey` has a new value: puts the fields right that depend on it.
    void CallBack_ValueChange(const std::string& sKey, ReportFilterObject& flt);

    // The user pressed OK: `Cancel` becomes True if a check refuses the values, which its message then tells
    // the user, else False. Gives nothing.
    Value CallBack_FilterClick(ReportFilterObject& objFilter, bool& Cancel);

    // A field that may change the report's view has a new value, and: which view comes first? Only reports
    // with more than one view write `ReturnViewClass`.
    void CallBack_ReportViewChange(const std::string& sKey, ReportFilterObject& flt, Value& ReturnViewClass);
    void CallBack_ReportViewInit(ReportFilterObject& flt, Value& ReturnViewClass);

    // Rebuilds the list of open fiscal months, gdicAccMonth.
    void InitAccMonth();

  private:
    DialogState objState;
};

}  // namespace kavelin
