// Receipt-issue classes: one character for the direction and two for the kind, as the parameter cDispLevel says.
#pragma once

#include <string_view>

namespace kavelin::demo {

inline constexpr std::string_view kRdPurchase = "101";
inline constexpr std::string_view kRdFinished = "102";
inline constexpr std::string_view kRdOtherIn = "103";
inline constexpr std::string_view kRdCountSurplus = "104";
inline constexpr std::string_view kRdSubcontracted = "105";
inline constexpr std::string_view kRdConsigned = "106";
inline constexpr std::string_view kRdVendorManaged = "107";
inline constexpr std::string_view kRdTransferIn = "108";
inline constexpr std::string_view kRdAssemblyIn = "109";
inline constexpr std::string_view kRdDisassemblyIn = "110";
inline constexpr std::string_view kRdConversionIn = "111";
inline constexpr std::string_view kRdAdjustmentIn = "112";
inline constexpr std::string_view kRdDirectPurchase = "113";
inline constexpr std::string_view kRdPurchaseReturn = "114";
inline constexpr std::string_view kRdImport = "115";

inline constexpr std::string_view kRdMaterial = "201";
inline constexpr std::string_view kRdSale = "202";
inline constexpr std::string_view kRdOtherOut = "203";
inline constexpr std::string_view kRdCountShortage = "204";
inline constexpr std::string_view kRdToSubcontractor = "205";
inline constexpr std::string_view kRdEntrusted = "206";
inline constexpr std::string_view kRdInstalment = "207";
inline constexpr std::string_view kRdTransferOut = "208";
inline constexpr std::string_view kRdAssemblyOut = "209";
inline constexpr std::string_view kRdDisassemblyOut = "210";
inline constexpr std::string_view kRdConversionOut = "211";
inline constexpr std::string_view kRdAdjustmentOut = "212";
inline constexpr std::string_view kRdDirectSale = "213";
inline constexpr std::string_view kRdSaleReturn = "214";
inline constexpr std::string_view kRdExport = "215";
inline constexpr std::string_view kRdSpareParts = "216";

}  // namespace kavelin::demo
