// A batch of T-SQL as its statements, so that the rows of each can be put out before the next one runs.
#pragma once

#include "frame/Errors.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kavelin::cli {

struct BatchPart {
    std::string text;
    std::size_t offset = 0;  // in the batch, in bytes
    bool givesRows = false;  // a select that makes no table, also behind an `if exists`
};

// Throws DatabaseError with the place in the batch if it cannot be read as T-SQL; so nothing of a batch
// with such a fault is run.
std::vector<BatchPart> SplitBatch(const std::string& batch);

// The same for a server, which knows more T-SQL than can be read here: what cannot be read is one part, of
// which the first rows that it gives are put out.
std::vector<BatchPart> SplitForServer(const std::string& batch);

// The details of an error in a part, with the place as it is in the batch.
DatabaseError::Details InBatch(DatabaseError::Details details, const std::string& batch,
                               const BatchPart& part);

}  // namespace kavelin::cli
