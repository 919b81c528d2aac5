#include "orn/split_fields.h"

namespace orn {

std::vector<std::string> split_fields(std::string_view text, char separator, int max_fields)
{
    std::vector<std::string> fields;
    int cuts = 0;
    std::size_t start = 0;
    while (max_fields <= 0 || cuts < max_fields) {
        const std::size_t at = text.find(separator, start);
        if (at == std::string_view::npos) {
            break;
        }
        fields.emplace_back(text.substr(start, at - start));
        start = at + 1;
        ++cuts;
    }
    fields.emplace_back(text.substr(start));
    return fields;
}

} // namespace orn
