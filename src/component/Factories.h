// Makes late-bound objects of the public classes that this build holds, a function a class.
#pragma once

#include "frame/host/HostObject.h"

#include <memory>

namespace kavelin {

std::shared_ptr<LateBound> CreateProPortion();
std::shared_ptr<LateBound> CreateCinTurnRep();
std::shared_ptr<LateBound> CreateABC();
std::shared_ptr<LateBound> CreateAreaStockReport();
std::shared_ptr<LateBound> CreateBusiness();
std::shared_ptr<LateBound> CreateFilterControl();
std::shared_ptr<LateBound> CreateFCSumInfo();
std::shared_ptr<LateBound> CreateFCInventory();
std::shared_ptr<LateBound> CreateOutDetailInfo();
std::shared_ptr<LateBound> CreateSFCSumCon();
std::shared_ptr<LateBound> CreateSfcSumInfo();
std::shared_ptr<LateBound> CreateIASFCReport();
std::shared_ptr<LateBound> CreateWtInfo();
std::shared_ptr<LateBound> CreateStaCostacc();
std::shared_ptr<LateBound> CreateIaAnalysis();
std::shared_ptr<LateBound> CreateLastRep();

}  // namespace kavelin
