#include "summary/clsSfcSumInfo.h"

#include "frame/Guards.h"
#include "summary/clsSFCSumCon.h"

namespace kavelin {

bool clsSfcSumInfo::MoveDataDetail()
{
    return IgnoreErrors(
        [this] { clsSFCSumCon().CreateNewTemplate(Existing(objFrame.objFilter), objFrame.strTable); });
}

void clsSfcSumInfo::GETSQL(ReportCallArgs& e)
{
    RunFrame(FindFrameRow("clsSfcSumInfo", FrameEntry::GETSQL), e, objFrame,
             [this] { return MoveDataDetail(); });
}

}  // namespace kavelin
