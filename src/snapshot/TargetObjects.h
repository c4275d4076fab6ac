// Makes what a target lacks.
#pragma once

#include "snapshot/CopyPlan.h"
#include "snapshot/CopyTarget.h"

namespace kavelin::snapshot {

// Makes the tables of the plan, and of the schema's other tables, views and functions those that are missing.
// A view whose rows the plan brings is made as a table. Throws Error where that is not possible,
// DatabaseError.
void MakeMissing(CopyTarget& target, const AccountObjects& there, const CopyPlan& plan);

}  // namespace kavelin::snapshot
