// Column lists of the goods-in-transit template's work table. The last three characters of a measure's name
// are its meaning: the measure, and the direction by which it counts in the closing balance.
#pragma once

#include "goods/TemplateFilter.h"

#include <cstdint>
#include <string>

namespace kavelin {

// The columns by which the result is grouped; per inventory if `lngInvCGrade` is 0, else per inventory class.
std::string BuildDimensionColumns(std::int32_t lngInvCGrade);

// What a line brings into the opening balance: its quantity and amount with the sign of its direction, also for
// issues. Zeros in the movement.
std::string BuildOpeningColumns(TemplatePass pass);

// What a line brings in or takes out in the period. Zeros in the opening.
std::string BuildPlainMovementColumns(TemplatePass pass);

// Pieces: the quantity over the auxiliary unit's rate where there is one, else 0.
std::string InPieces(const std::string& strQuantity);

// A column of zeros, with the comma before it.
std::string ZeroColumn(const std::string& strName);

}  // namespace kavelin
