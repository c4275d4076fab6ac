// tests/demo/catalogue: what an account consists of, as text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kavelin::demo {

struct CatalogueColumn {
    std::string name;
    std::string type;  // "nvarchar(60)", "int"
    bool nullable = true;
    bool identity = false;

    bool operator==(const CatalogueColumn&) const = default;
};

struct CatalogueObject {
    std::string name;
    bool view = false;
    std::vector<CatalogueColumn> columns;  // families and columns of other objects spelled out
};

std::vector<CatalogueObject> ReadObjects();

// No object of `objects` may have one of `columns`.
struct SingleNames {
    std::vector<std::string> columns;
    std::vector<std::string> objects;
};

std::vector<SingleNames> ReadSingleNames();

}  // namespace kavelin::demo
