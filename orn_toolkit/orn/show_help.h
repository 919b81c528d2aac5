#pragma once

class QString;

namespace orn {

// Opens the help page for the program's language in the desktop's browser.
// `page_template` names the page with a "%1" for the language code, for example
// ":/help/index_%1.html"; a language without a page falls back to English. The
// page is copied to "<stem>_help_<lang>.html" in the temporary folder, the stem
// being the application name in lower case without blanks, and opened from there,
// because a browser can't read the program's resources.
void show_help(const QString& page_template);

// The stem of the temporary help files: the application name in lower case, with
// all blanks removed ("lookwright" for "Lookwright").
QString help_file_stem();

} // namespace orn
