#include "demo/books/HeadColumns.h"

#include "demo/books/Padded.h"

#include <string>

namespace kavelin::demo {

Value UnitCostOrNull(std::int64_t amount, std::int64_t quantity)
{
    if (quantity == 0 || amount == 0)
        return Value::Null();
    // Cents by hundredths of the unit: the hundreds cancel out.
    return static_cast<double>(Share(amount, 10000, quantity)) / 10000.0;
}

Value OrderOrNull(const Document& document, std::string_view prefix)
{
    if (document.order == 0 || document.type == nullptr || document.type->orderPrefix != prefix)
        return Value::Null();
    std::string code(prefix);
    code += "-08-";
    AppendPadded(code, document.order, 6);
    return code;
}

Value ProjectClass(const Document& document)
{
    const Project* project = ProjectOf(document.project);
    return project ? Value(project->projectClass) : Value::Null();
}

Value ProjectClassName(const Document& document)
{
    const Project* project = ProjectOf(document.project);
    return project ? Value(project->className) : Value::Null();
}

Value ProjectName(const Document& document)
{
    const Project* project = ProjectOf(document.project);
    return project ? Value(project->name) : Value::Null();
}

}  // namespace kavelin::demo
