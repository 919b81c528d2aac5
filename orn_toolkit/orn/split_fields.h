#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orn {

// Cuts `text` at every `separator`, keeping empty fields: "a,,b" gives three fields
// and an empty text one empty field. With `max_fields` above 0 cutting stops after
// that many cuts, and the rest, separators and all, is the last field.
std::vector<std::string> split_fields(std::string_view text, char separator, int max_fields = 0);

} // namespace orn
