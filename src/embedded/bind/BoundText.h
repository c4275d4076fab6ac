// A bound statement as text, for tests and for whoever asks what a statement was taken to mean. Sources
// show by number (s1, s2), types and conversions are written out:
//
//   select
//     cInvCode: nvarchar(60) not null = s1.cInvCode
//     cost: money = sum(s1.iAInPrice):money
//   from "account"."main"."IA_Subsidiary" s1
//   where (s1.iMonth = 7:tinyint)
//   group by s1.cInvCode
#pragma once

#include "embedded/bind/BoundTree.h"

#include <string>

namespace kavelin::embedded {

std::string ToText(const BoundStatement& statement);

// The same with the type of an item or column behind it, a tab between.
std::string ToTextWithTypesBehind(const BoundStatement& statement);

std::string ToText(const BoundExpr& expression);

}  // namespace kavelin::embedded
