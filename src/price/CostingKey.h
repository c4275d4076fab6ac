// What the ledger values its stock by: an item alone, by warehouse or by department, and by batch where its
// method asks for it. The passes of the price analysis join their tables by it, `t` being the table to update
// and `s` the source.
#pragma once

#include <string>
#include <string_view>

namespace kavelin {

struct CostingKey {
    std::string_view strValueStyle;     // parameter cValueStyle of the account; empty for any other
    std::string_view strKeyColumns;     // beside item and batch
    std::string_view strKeyJoin;        // equality of those
    std::string_view strWarehouseJoin;  // brings in the warehouse, where it tells the method
    std::string_view strLedgerMethod;   // column of IA_v_Subsidiary with the valuation method
    std::string_view strBatchJoin;      // the batches of `t` and `s` are one, where batches count in `s`
    std::string_view strBatchJoinBack;  // the same where the costs go from `s`, a key, to `t`, a row
};

// The key of an account that values its stock by `strValueStyle`.
const CostingKey& CostingKeyOf(std::string_view strValueStyle);

// All equalities of a key behind that of the item: batch, warehouse or department, the ten free items.
std::string KeyJoins(const CostingKey& key);
std::string KeyJoinsBack(const CostingKey& key);

}  // namespace kavelin
