#include "journal/clsAreaStockReport.h"

#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "journal/AreaStockStatements.h"

namespace kavelin {

void clsAreaStockReport::GETSQL(ReportCallArgs& e)
{
    RunFrame(FindFrameRow("clsAreaStockReport", FrameEntry::GETSQL), e, objFrame, [this] {
        Existing(ModPub().gcnnAccount)
            .Execute(SelectAreaRows(objFrame.strTable,
                                    FilterText(objFrame.dicArgs[FrameRead::ArgIADataTable]),
                                    FilterText(objFrame.dicArgs[FrameRead::ArgIAAreeTable])));
        return true;
    });
}

}  // namespace kavelin
