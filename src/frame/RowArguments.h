// The argument of a drill-down, read member by member, however the host binds it.
#pragma once

#include "frame/host/DrillDownArgs.h"

#include <memory>
#include <string>

namespace kavelin {

class RowArguments {
  public:
    virtual ~RowArguments() = default;

    virtual std::shared_ptr<LoginContext> Login() = 0;
    virtual std::string Action() = 0;

    // A cell of the row. The row is read once and kept.
    virtual std::string Cell(const std::string& column) = 0;
};

class EarlyRowArguments : public RowArguments {
  public:
    explicit EarlyRowArguments(DrillDownArgs& e) : objArguments(e) {}

    std::shared_ptr<LoginContext> Login() override;
    std::string Action() override;
    std::string Cell(const std::string& column) override;

  private:
    DrillDownArgs& objArguments;
    std::shared_ptr<RelateData> objRow;
};

class LateRowArguments : public RowArguments {
  public:
    explicit LateRowArguments(LateBound& e) : objArguments(e) {}

    std::shared_ptr<LoginContext> Login() override;
    std::string Action() override;
    std::string Cell(const std::string& column) override;

  private:
    LateBound& objArguments;
    std::shared_ptr<LateBound> objRow;
};

}  // namespace kavelin
