// With whom the company deals, and for what.
#include "demo/company/Company.h"

#include <algorithm>

namespace kavelin::demo {

namespace {

constexpr Party kVendors[] = {
    {"V001", "江南特钢有限公司", "江南特钢", "01"},
    {"V002", "华峰金属材料有限公司", "华峰金属", "01"},
    {"V003", "东海铜业股份有限公司", "东海铜业", "01"},
    {"V004", "新光化工有限公司", "新光化工", "01"},
    {"V011", "三联铸造有限公司", "三联铸造", "01"},
    {"V005", "恒固标准件厂", "恒固", "02"},
    {"V006", "北岭轴承有限公司", "北岭轴承", "02"},
    {"V007", "正源电机有限公司", "正源电机", "02"},
    {"V008", "联通达电气有限公司", "联通达", "02"},
    {"V012", "明川密封件有限公司", "明川密封", "02"},
    {"V009", "润科油品经营部", "润科", "03"},
    {"V010", "安信劳保用品商行", "安信", "03"},
    {"V013", "顺达包装制品厂", "顺达包装", "03"},
    {"V014", "海瑞阀门制造有限公司", "海瑞阀门", "04"},
    {"V015", "蓝泉泵业有限公司", "蓝泉泵业", "04"},
    {"V016", "永利机械加工厂", "永利机加", "05"},
    {"V017", "宏图表面处理有限公司", "宏图表面", "05"},
    {"V018", "金石热处理厂", "金石热处理", "05"},
    {"V019", "北岭轴承寄售部", "北岭寄售", "06"},
    {"V020", "恒固标准件寄售部", "恒固寄售", "06"},
    {"V021", "Rheintal Dichtungen GmbH", "Rheintal", "07"},
    {"V022", "Kiso Bearing Works", "Kiso", "07"},
};

constexpr Party kCustomers[] = {
    {"C001", "滨江自来水公司", "滨江水司", "01"},
    {"C002", "城东污水处理厂", "城东污水", "01"},
    {"C005", "南山热电厂", "南山热电", "01"},
    {"C010", "高新区供水公司", "高新供水", "01"},
    {"C003", "金桥建设集团", "金桥建设", "02"},
    {"C004", "宏达机电设备有限公司", "宏达机电", "02"},
    {"C006", "远洋船舶修造有限公司", "远洋船修", "02"},
    {"C007", "绿源农业灌溉公司", "绿源", "02"},
    {"C008", "西部石化工程公司", "西部石化", "02"},
    {"C011", "中岳矿业有限公司", "中岳矿业", "02"},
    {"C009", "Harbour Pump Trading Ltd", "Harbour", "03"},
    {"C012", "Baltic Waterworks AB", "Baltic", "03"},
    {"C013", "Andes Riego S.A.", "Andes", "03"},
    {"C014", "Gulf Process Supplies LLC", "Gulf", "03"},
    {"C015", "利民五金机电商行", "利民五金", "04"},
    {"C016", "华南水暖批发市场三号店", "华南水暖", "04"},
    {"C017", "城西泵阀经销部", "城西泵阀", "04"},
};

constexpr Person kPersons[] = {
    {"P01", "陈建国", "01"},   {"P02", "李秀英", "01"}, {"P03", "王志强", "0201"}, {"P04", "张敏", "0202"},
    {"P05", "刘洋", "03"},     {"P06", "赵丽华", "03"}, {"P07", "周伟", "0401"},   {"P08", "吴芳", "0402"},
    {"P09", "郑晓东", "0301"}, {"P10", "孙慧", "0403"},
};

constexpr Project kProjects[] = {
    {"00", "合同项目", "HT-0801", "滨江二水厂扩建"}, {"00", "合同项目", "HT-0802", "南山热电循环水改造"},
    {"00", "合同项目", "HT-0803", "西部石化罐区"},   {"00", "合同项目", "HT-0804", "高新区供水管网"},
    {"97", "技改项目", "JG-0801", "一车间起重机"},   {"97", "技改项目", "JG-0802", "试压台更新"},
};

}  // namespace

std::span<const Party> Vendors()
{
    return kVendors;
}

std::span<const Party> Customers()
{
    return kCustomers;
}

std::span<const Party> OfClass(std::span<const Party> parties, std::string_view partyClass)
{
    const auto found = std::ranges::equal_range(parties, partyClass, {}, &Party::partyClass);
    return {found.begin(), found.end()};
}

std::span<const Person> Persons()
{
    return kPersons;
}

std::span<const Project> Projects()
{
    return kProjects;
}

const Person* PersonOf(std::string_view code)
{
    const auto found = std::ranges::find(kPersons, code, &Person::code);
    return found == std::end(kPersons) ? nullptr : &*found;
}

const Project* ProjectOf(std::string_view code)
{
    const auto found = std::ranges::find(kProjects, code, &Project::code);
    return found == std::end(kProjects) ? nullptr : &*found;
}

}  // namespace kavelin::demo
