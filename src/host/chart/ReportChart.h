// Reports as pictures.
#pragma once

#include "frame/Connection.h"
#include "frame/host/SuiteObjects.h"
#include "host/Reports.h"

#include <string>
#include <string_view>

namespace kavelin::host {

// Whether there is a picture of the report.
bool HasChart(const Report& report);

// What the picture says beside the rows.
struct ChartContext {
    std::string_view language;  // "en-US", or Chinese for all else
    std::string subtitle;       // whose figures these are, and of when
    double limitA = 0.7;        // shares of money at which classes A and B of the ABC analysis begin
    double limitB = 0.1;

    // Takes the limits as the user set them; those that he didn't stay.
    void TakeLimits(SettingsStore& settings);
};

// The rows of the report's result as an SVG document. The largest values are drawn, and the subtitle tells how many
// rows there are; a row without a price is told there and not drawn. Throws Error for a report without a picture,
// and where the result lacks a column of it.
std::string DrawChart(const Report& report, Recordset& rows, const ChartContext& context);

}  // namespace kavelin::host
