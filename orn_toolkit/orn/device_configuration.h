#pragma once

namespace orn {

// Moves the settings of every scope to "<PUBLIC>/<organisation>/<application>.ini"
// when that file exists, so a site can configure all users of a machine at once.
// Nothing happens without the variable or the file.
void use_device_global_configuration();

} // namespace orn
