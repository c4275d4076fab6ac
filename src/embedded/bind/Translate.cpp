#include "embedded/Plan.h"
#include "embedded/bind/BoundTree.h"

namespace kavelin::embedded {

StatementPlan Translate(const Statement& statement, std::string_view text, const Catalog& catalog)
{
    return Write(Bind(statement, text, catalog));
}

StatementPlan TranslateQuery(const Query& query, std::string_view text, const Catalog& catalog)
{
    return Write(BindRows(query, text, catalog));
}

}  // namespace kavelin::embedded
