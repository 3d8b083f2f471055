#include "stats/CorrectExchangeName.h"

namespace {

struct ExchangeNames {
    std::string_view onMap;
    std::string_view inStatistics;
};

constexpr ExchangeNames differingNames[] = {
    {"BIRMINGHAM NORTHERN", "NORTHERN"},
    {"JOHN O'GROATS", "JOHN OGROATS"},
    {"ROSE STREET", "ROSE ST"},
    {"ESTON GRANGEWILTON INTERNATIONAL", "ESTON GRANGE/WILTON INTERNATIONAL"},
    {"ST. MARGARET'S HOPE", "ST. MARGARETS HOPE"},
    {"ARLEY (Wyre Forest)", "ARLEY"},
    {"CAXTON/CAMBOURNE", "CAXTON"},
    {"COLCHESTER/LUCY LANE NORTH", "COLCHESTER"},
    {"ECKINGTON (North East Derbyshire Distric", "ECKINGTON (North East Derbyshire)"},
    {"DOUGLAS ()", "DOUGLAS"},
    {"RAMSEY ()", "RAMSEY"},
    {"KINCARDINE O'NEIL", "KINCARDINE ONEIL"},
    {"MIDDLETON (King's Lynn and W Norfolk)", "MIDDLETON (Kings Lynn and West Norfolk)"},
    {"MARSHALL'S CROSS", "MARSHALLS CROSS"},
    {"NARBOROUGH (King's Lynn and W Norfolk)", "NARBOROUGH (Kings Lynn and West Norfolk"},
    {"NOTTINGHAM ARCHER/CRUSADER", "NOTTINGHAM LONGBOW"},
    {"GOSFORTH (Newcastle upon Tyne District (", "GOSFORTH (Newcastle upon Tyne)"},
    {"NEWCASTLE CENTRAL (Newcastle upon Tyne D", "NEWCASTLE CENTRAL (Newcastle upon Tyne)"},
    {"BLUNSDON/HAYDON WICK", "BLUNSDON"},
    {"ST ANNE'S", "ST ANNES"},
    {"WHITELEY", ""},
    {"ST. MICHAEL'S", "ST. MICHAELS"},
    {"WATLINGTON (King's Lynn and W Norfolk)", "WATLINGTON (Kings Lynn and West Norfolk"},
};

} // namespace

std::string CorrectExchangeName(std::string_view mapName) {
    for (const ExchangeNames& names : differingNames) {
        if (names.onMap == mapName)
            return std::string(names.inStatistics);
    }
    return std::string(mapName);
}
