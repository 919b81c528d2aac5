#pragma once

// Registers the program's own resources (fonts, images, and whatever else the
// program carries under :/images, :/help and :/translations). They live in a static
// library, whose resources the linker drops unless something calls this; main and
// the program's tests do.
void init_lookwright_resources();
