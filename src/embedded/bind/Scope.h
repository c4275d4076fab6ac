// The names that a piece of a statement sees: the sources of its FROM, and around them those of the
// queries that it stands in.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/syntax/Tree.h"

#include <cstddef>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace kavelin::embedded {

// What one statement's binding shares.
class BindContext {
  public:
    explicit BindContext(const Catalog& catalog) : objCatalog(catalog) {}

    const Catalog& Objects() const { return objCatalog; }

    // The number of the next source.
    int NextSource() { return ++lngSources; }

    // Counts a node bound at `place`. Throws SqlError 8623 where simple cases within simple cases grow
    // beyond all use, for each of them binds its operand once a branch.
    void CountNode(Place place);

    // One level deeper as long as it lives. Throws SqlError 191 beyond a depth that no stack minds.
    class Level {
      public:
        Level(BindContext& context, Place place);
        ~Level() { --objContext.lngDepth; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

      private:
        BindContext& objContext;
    };

    // A view outlives the facts of the columns below it, and the language of the connection that makes it.
    bool forView = false;

    // What is taken as known of every text column of an object, in place of what is.
    std::optional<TextFacts> assumedFacts;

    // The tables and views of FROMs by their sources' numbers.
    std::map<int, const ObjectInfo*> objects;

  private:
    const Catalog& objCatalog;
    int lngSources = 0;
    int lngNodes = 0;
    int lngDepth = 0;
};

// One table, view or derived table of a FROM.
struct Source {
    int number = 0;
    std::string name;  // by which columns name it: the alias, else the bare name
    bool aliased = false;
    const ObjectInfo* object = nullptr;  // null for a derived table
    std::vector<ColumnInfo> derived;     // its columns then
    bool missing = false;                // a left join may find no row of it: every column may be null

    const std::vector<ColumnInfo>& Columns() const { return object ? object->columns : derived; }

    // The column of that name, which is in lower case already, or null.
    const ColumnInfo* Find(const std::string& lowerName) const;

  private:
    mutable std::unordered_map<std::string, std::size_t> dicColumns;  // filled by the first search
};

// What is being bound: it decides whether an aggregate may stand there.
enum class Clause { List, On, Where, GroupBy, Having, OrderBy, Set, Values };

class Scope {
  public:
    // `outer` is the scope that a subquery stands in, else null.
    Scope(BindContext& context, Scope* outer) : objContext(context), objOuter(outer) {}

    BindContext& Context() const { return objContext; }
    Scope* Outer() const { return objOuter; }

    // Adds a source. Throws SqlError 1011, 1012 or 1013 if another has its name.
    Source& Add(Source source, Place place);
    const std::deque<Source>& Sources() const { return objSources; }
    std::deque<Source>& Sources() { return objSources; }
    bool Holds(int source) const;

    struct Found {
        const Source* source = nullptr;
        const ColumnInfo* column = nullptr;
        bool ambiguous = false;
    };
    // A column without a qualifier, of the sources from `visibleFrom` on.
    Found Find(const std::string& lowerName) const;
    // A column of the source that `table` names. `source` is set where there is one, even if it has no
    // such column.
    Found Find(const ObjectName& table, const std::string& lowerName) const;
    // The sources that `table` names as the qualifier of a column.
    std::vector<const Source*> Named(const ObjectName& table) const;

    Clause clause = Clause::List;
    std::size_t visibleFrom = 0;  // ON sees the sources of its own join only
    bool insideAggregate = false;
    bool hasAggregates = false;    // of this select, not of one inside
    std::size_t ownColumns = 0;    // columns of this scope's sources named in it so far
    std::size_t outerColumns = 0;  // of scopes around it

  private:
    BindContext& objContext;
    Scope* objOuter;
    std::deque<Source> objSources;  // sources stay where they are
};

// Sets a field of a scope for as long as it lives.
template <class T>
class During {
  public:
    During(T& field, T value) : objField(field), objBefore(field) { field = value; }
    ~During() { objField = objBefore; }
    During(const During&) = delete;
    During& operator=(const During&) = delete;

  private:
    T& objField;
    T objBefore;
};

}  // namespace kavelin::embedded
