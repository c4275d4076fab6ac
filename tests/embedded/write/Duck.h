// A DuckDB in memory, which runs what the writer wrote.
#pragma once

#include "embedded/Plan.h"

#include <memory>
#include <string>

namespace kavelin::embedded {

class Duck {
  public:
    Duck();
    ~Duck();
    Duck(const Duck&) = delete;
    Duck& operator=(const Duck&) = delete;

    // The rows of the statement: columns parted by "|", rows by ";", NULL written out. A failure gives
    // SQL Server's number and text: "8134 Divide by zero error encountered."
    std::string Run(const std::string& sql);

    // All steps of a plan; the answer of the last, or of the first that fails.
    std::string Run(const StatementPlan& plan);

  private:
    struct Handles;
    std::unique_ptr<Handles> objHandles;
    bool blnFailed = false;  // the last statement
};

}  // namespace kavelin::embedded
