// The names by which objects outside the library are made.
#pragma once

#include <string_view>

namespace kavelin::automation {

constexpr std::string_view kConnectionName = "ADODB.Connection";
constexpr std::string_view kRecordsetName = "ADODB.Recordset";
constexpr std::string_view kXmlDocumentName = "MSXML2.DOMDocument";
constexpr std::string_view kResourcesName = "Lumenet.ResLog";

// Objects that the suite makes under names of its own kind; a host provides them under these.
constexpr std::string_view kAuthServiceName = "Suite.AuthService";
constexpr std::string_view kLedgerLoginName = "Suite.LedgerLogin";
constexpr std::string_view kLedgerPubName = "Suite.LedgerPub";
constexpr std::string_view kLedgerParamsName = "Suite.LedgerParams";
constexpr std::string_view kMachineInfoName = "Suite.MachineInfo";
constexpr std::string_view kClientNumberName = "Suite.ClientNumber";
constexpr std::string_view kSettingsStoreName = "Suite.SettingsStore";
constexpr std::string_view kFormHostName = "Suite.FormHost";

}  // namespace kavelin::automation
