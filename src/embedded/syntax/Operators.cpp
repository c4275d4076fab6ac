#include "embedded/syntax/Operators.h"

namespace kavelin::embedded {

std::string_view OperatorText(ArithmeticOp op)
{
    switch (op) {
        case ArithmeticOp::Add: return " + ";
        case ArithmeticOp::Subtract: return " - ";
        case ArithmeticOp::Multiply: return " * ";
        case ArithmeticOp::Divide: break;
    }
    return " / ";
}

std::string_view OperatorText(ComparisonOp op)
{
    switch (op) {
        case ComparisonOp::Equal: return " = ";
        case ComparisonOp::NotEqual: return " <> ";
        case ComparisonOp::Less: return " < ";
        case ComparisonOp::LessOrEqual: return " <= ";
        case ComparisonOp::Greater: return " > ";
        case ComparisonOp::GreaterOrEqual: break;
    }
    return " >= ";
}

}  // namespace kavelin::embedded
