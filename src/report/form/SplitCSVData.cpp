#include "report/form/SplitCSVData.h"

namespace {

std::string without(std::string_view field, std::string_view encapsuler) {
    std::string text(field);
    if (encapsuler.empty())
        return text;
    for (std::size_t at = text.find(encapsuler); at != std::string::npos; at = text.find(encapsuler, at))
        text.erase(at, encapsuler.size());
    return text;
}

} // namespace

void SplitCSVData(std::string_view sData, std::string_view sDelimiter, std::string_view sDataEncapsuler,
                  std::vector<std::string>& fields) {
    if (sData.empty())
        return;
    fields.clear();
    std::size_t start = 0;
    std::size_t end = sDelimiter.empty() ? std::string_view::npos : sData.find(sDelimiter);
    for (; end != std::string_view::npos; end = sData.find(sDelimiter, start)) {
        fields.push_back(without(sData.substr(start, end - start), sDataEncapsuler));
        start = end + sDelimiter.size();
    }
    fields.push_back(without(sData.substr(start), sDataEncapsuler));
}
