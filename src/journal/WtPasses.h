// The fifteen passes over documents that are not posted yet: each is one kind of document and one statement.
#pragma once

#include "journal/WtRun.h"

#include <span>
#include <string>
#include <string_view>

namespace kavelin {

// A run, and what the documents' statements need beyond it.
struct WtUnpostedRun : WtRun {
    WtFlags flags;
    std::string strVouTypes;     // the documents' list, empty for all
    std::string strDirectWhere;  // strWhere without conditions that documents of direct business cannot meet
};

struct WtPass {
    int number;
    // Voucher types of which the list must hold one, if there is a list. "'ex" stands for all that begin so.
    std::span<const std::string_view> codes;
    bool (*applies)(const WtFlags& flags);  // whether the account posts such documents
    std::string_view source;
    std::string (*statement)(const WtUnpostedRun& run, std::string_view source);
};

// In the order in which they run.
std::span<const WtPass> WtPasses();

// Whether the list lets the pass run.
bool Allows(std::string_view strVouTypes, const WtPass& pass);

}  // namespace kavelin
