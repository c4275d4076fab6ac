#include "host/FailedStatements.h"

#include "frame/Text.h"

namespace kavelin::host {

void FailedStatements::Ended(const StatementRecord& record)
{
    if (record.error && !strFirst && !ToLower(record.sql.substr(0, 11)).starts_with("drop table "))
        strFirst = record.error;
    if (record.connectionLost && !strLoss)
        strLoss = record.error;
}

}  // namespace kavelin::host
