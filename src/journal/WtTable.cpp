#include "journal/WtTable.h"

#include "frame/Statement.h"

#include <string_view>

namespace kavelin {

namespace {

struct TypedColumn {
    std::string_view name, type;
};

// In the order in which they are changed.
constexpr TypedColumn kTypedColumns[] = {
    {"cDefine4", "datetime"}, {"cDefine5", "int"},    {"cDefine6", "datetime"},  {"cDefine7", "float"},
    {"cDefine26", "float"},   {"cDefine27", "float"}, {"cDefine15", "int"},      {"cDefine16", "float"},
    {"cDefine34", "int"},     {"cDefine35", "int"},   {"cDefine36", "datetime"}, {"cDefine37", "datetime"},
};

}  // namespace

std::string DropJournalTable(const std::string& strTable)
{
    return "if exists(Select * from sysobjects where name= N'" + strTable + "') Drop Table " + strTable;
}

std::string CreateJournalTable(const std::string& strTable)
{
    return JoinLines({
        "CREATE TABLE " + strTable + " (",
        "单据日期 datetime NULL, 单据号 nvarchar (30), 记账日期 datetime NULL, 记账人 nvarchar (30),",
        "凭证号 nvarchar(40) NULL, 凭证摘要 nvarchar (255),",
        "业务类型 nvarchar (200), 业务号 nvarchar (40),",
        "仓库编码 nvarchar (20), 仓库 nvarchar (120), 部门 nvarchar (255), 收发类别 nvarchar(12),",
        "客户分类 nvarchar(24), 客户编码 nvarchar(40), 客户 nvarchar (196),",
        "供应商分类 nvarchar (24), 供应商编码 nvarchar (40), 供应商 nvarchar(120),",
        "经手人 nvarchar(20), 合同号 nvarchar(80),",
        "生产订单号 nvarchar(30), 生产订单行号 nvarchar(30) NULL, 工序行号 nvarchar(60), 工作中心 nvarchar(20),",
        "销售订单号 nvarchar(30), 销售订单行号 nvarchar(30) NULL,",
        "出口订单号 nvarchar(50), 出口订单行号 nvarchar(50),",
        "委外订单号 nvarchar(30), 采购订单号 nvarchar(60), 进口订单号 nvarchar(60),",
        "项目大类 nvarchar(10), 项目大类名称 nvarchar(120), 项目编码 nvarchar(60), 项目名称 nvarchar(255),",
        "存货分类 nvarchar(24), 存货编码 nvarchar(120),",
        "存货名称 nvarchar(255), 存货代码 nvarchar(255), 规格型号 nvarchar(255),",
        "批号 nvarchar(120), 生产批号 nvarchar(80),",
        "主计量单位 nvarchar(60), 辅计量单位 nvarchar(60), 换算率 float NULL,",
        "收入数量 float NULL, 收入单价 float NULL, 收入金额 money NULL,",
        "发出数量 float NULL, 发出单价 float NULL, 发出金额 money NULL,",
        "计划价 float NULL, 计划金额 float NULL, 借方差异 money NULL, 贷方差异 money NULL,",
        Numbered(1, 16, "cdefine{} nvarchar(120), ") + Numbered(22, 37, "cdefine{} nvarchar(120), "),
        Numbered(1, 16, "cinvdefine{} nvarchar(120), "),
        Numbered(1, 10, "cfree{} nvarchar(20), "),
        "备注 nvarchar(255),",
        "AutoID nvarchar(50) NULL, ID nvarchar(50) NULL, bRdFlag bit NOT NULL, cVouType nvarchar(4) NOT NULL,",
        "cPzID nvarchar(30) null, cDemandCode nvarchar(30) null, cDemandMemo nvarchar(300) null,",
        "imaterialfee money NULL, iProcessFee money NULL, costsource nvarchar(300) null)",
    });
}

std::vector<std::string> AlterJournalTable(const std::string& strTable)
{
    std::vector<std::string> statements;
    for (const TypedColumn& column : kTypedColumns)
        statements.push_back("ALTER TABLE " + strTable + " ALTER  COLUMN " + std::string(column.name) + " " +
                             std::string(column.type));
    return statements;
}

}  // namespace kavelin
