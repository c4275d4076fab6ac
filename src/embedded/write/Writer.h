// Writes the expressions and queries of one bound statement as DuckDB SQL.
//
// Every value is written in one of two fits. Exact: of the very DuckDB type that its T-SQL type stands
// for. Loose: right in value and scale, but perhaps in a wider number (DECIMAL(20,4) for a sum of money,
// BIGINT for a count): enough where it is compared, summed up or converted anyway, and a cast saved.
#pragma once

#include "embedded/bind/BoundTree.h"
#include "embedded/write/Scratch.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::embedded {

enum class Fit { Exact, Loose };

class Writer {
  public:
    // `table` and `verb` (INSERT, UPDATE) complete the message of a NULL that a column refuses.
    explicit Writer(std::string table = "", std::string verb = "") : strTable(table), strVerb(verb) {}

    std::string Value(const BoundExpr& expression, Fit fit = Fit::Exact);
    std::string Condition(const BoundExpr& expression);

    // The whole of a WHERE or ON.
    std::string Clause(const BoundExpr& expression);

    std::string Sources(const std::vector<BoundSourcePtr>& sources);

    // The statement asks for the rowid of this source, which a join therefore shows as it is.
    void KeepRowsOf(int source) { intRowsOf = source; }

    struct QueryForm {
        // Columns named by position, c0 c1 ..., not by their items.
        bool positional = false;
        // A first column "number": this text plus the row's number in the query's order.
        std::optional<std::string> numberFrom = std::nullopt;
        // Without the select's own DISTINCT, TOP and row numbers, which stand around it.
        bool bare = false;
    };
    std::string Query(const BoundQuery& query) { return Query(query, {}); }
    std::string Query(const BoundQuery& query, const QueryForm& form);

    static std::string Alias(int source);

  private:
    // One expression of GROUP BY: how it shows, and the folded form that rows are grouped by.
    struct GroupKey {
        std::string shown, grouped;
    };

    // A column of a derived table that stands for a part of a query.
    struct Column {
        std::string name;
        bool text = false;
        TextFacts facts;
    };

    // The smaller groups that a grouped select is put together from, see Groups.cpp.
    struct Parts {
        std::string name;  // of the derived table
        std::vector<std::string> keys, aggregates;

        // The column k0, k1 ... of a key, a0, a1 ... of an aggregate.
        std::string Key(std::size_t index) const;
        std::string Aggregate(const std::string& written);
    };

    // What a subquery, a CASE or a clause sets for itself and gives back.
    struct State {
        const std::vector<GroupKey>* keys = nullptr;
        Parts* parts = nullptr;  // null where rows are grouped at once
        std::string order;       // of the select being written, for row numbers; may be empty
        bool forgiving = false;  // see Conversion
        bool negated = false;    // inside a NOT, where NULL and false differ
    };

    // Expressions.cpp
    std::string Literal(const BoundLiteral& literal, const SqlType& type, Fit fit);
    std::string Convert(const BoundConversion& conversion, const BoundExpr& node, Fit fit);
    std::string RefuseNull(const std::string& value, const std::string& column) const;
    std::string Case(const BoundCase& choice, Fit fit);
    std::string Concat(const BoundExpr& node);
    std::string Identity(const BoundIdentity& identity) const;
    std::string Subquery(const BoundQuery& query) { return "(" + Query(query, {.positional = true}) + ")"; }

    // Functions.cpp
    std::string Function(const BoundFunction& function, const BoundExpr& node, Fit fit);
    std::string Aggregate(const BoundAggregate& aggregate, const BoundExpr& node, Fit fit);
    std::string Running(const BoundRunning& running, const BoundExpr& node, Fit fit);
    std::string Grouped(const std::string& aggregate, std::string_view ofParts);

    // Arithmetic.cpp
    std::string Arithmetic(const BoundArithmetic& arithmetic, const BoundExpr& node, Fit fit);
    std::string Sum(const BoundArithmetic& arithmetic, const SqlType& type, Fit fit);
    std::string Product(const BoundArithmetic& arithmetic, const SqlType& type, Fit fit);
    std::string WideProduct(const std::string& left, const std::string& right, int scale,
                            const SqlType& type);
    std::string Division(const BoundArithmetic& arithmetic, const SqlType& type, Fit fit);
    std::string DecimalDivision(const BoundArithmetic& arithmetic, int scale);
    std::string Divisor(const BoundExpr& expression, const std::string& written);
    std::string Negation(const BoundNegation& negation, const BoundExpr& node, Fit fit);

    // Conditions.cpp
    std::string Comparison(const BoundComparison& comparison);
    std::string Logical(const BoundExpr& node);
    std::string InQuery(const BoundInQuery& test);
    std::string InList(const BoundInList& test);
    std::string Like(const BoundLike& test);
    std::vector<std::string> Sides(const std::vector<const BoundExpr*>& sides, bool ordered);
    std::string Folded(const BoundExpr& expression);

    // Select.cpp
    std::string PlainQuery(const BoundSelect& select, const std::vector<BoundOrder>& order,
                           const QueryForm& form);
    std::string WrappedQuery(const BoundQuery& query, const QueryForm& form);
    std::string Union(const BoundQuery& query, std::vector<Column>& columns);
    std::string UnionPart(const BoundSelect& select);
    std::string Distinct(const std::string& core, const std::vector<Column>& columns);
    static std::vector<Column> ColumnsOf(const BoundSelect& select);
    std::string Source(const BoundSource& source);

    // Groups.cpp
    bool GroupsInParts(const BoundSelect& select) const;
    std::vector<GroupKey> GroupKeys(const BoundSelect& select);
    std::vector<GroupKey> GroupKeys(const BoundSelect& select, Parts& parts);
    std::string PartQuery(const BoundSelect& select, const Parts& parts);
    std::string FromWhere(const BoundSelect& select);

    std::string OrderKeys(const BoundSelect& select, const std::vector<BoundOrder>& order, bool breakTies);
    std::vector<std::string> TieKeys(const BoundSelect& select);

    Scratch objScratch;
    State objState;
    std::string strTable, strVerb;
    int intRowsOf = -1;
};

}  // namespace kavelin::embedded
