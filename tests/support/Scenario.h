// What a recording host answers in a scenario, as a text that a host of another kind plays again: the scripted
// hosts of the tests on Windows.
//
// One entry a line, its values behind it with "|" between; "|", "\", CR, LF and a tab in a value are written
// "\p", "\\", "\r", "\n" and "\t". A value that isn't text begins with "#": #empty, #null, #true, #false,
// #int 5, #double 1.5, #decimal 0.01, #date 2008-07-31; "\h" stands for it where a text begins with one.
//
//   class|ClsWtInfo                    the class whose GETSQL the scenario calls; clsFilterControl opens a dialog
//   dialog|IA[__]流水账                the identity of that dialog
//   login|VosDbName|account database   members of the login; month and day of the login as numbers and date
//   sql|WtResult                       DataSource.sql; likewise language|zh-CN
//   arg|ABC|1                          Args.Item
//   field|vouEstate|from|to|range|several    the last two are words or absent
//   where|2|text                       GetWhereWithToken(2); without a number that of all other tokens
//   list|Warehouse|'01','02'           GetList of the authorisation service
//   text|key|shown                     GetResString; code|shown|code is GetEnumCode
//   ledger|ValueStyle|按仓库核算       members of the ledger's parameters
//   setting|application, section, key|value
//   guid|ABCD0000000000000000000000000000
//   rows|whole|select ...              the answer to that statement; "start": to those that begin so
//   columns|a|b
//   row|#int 1|x
//   events                             all lines below: what happened, in order; "[5]" is the 5th statement
#pragma once

#include "support/RecordingHost.h"

#include <string>
#include <string_view>

namespace kavelin::test {

// Of a host that has played the scenario through.
std::string ScenarioText(RecordingHost& host, std::string_view className);

// Fails the running test unless the scenario is that of the file tests/scenarios/NAME.txt. KAVELIN_REWRITE=1 in
// the environment writes the file.
void ExpectScenario(RecordingHost& host, std::string_view className, const std::string& name);

}  // namespace kavelin::test
