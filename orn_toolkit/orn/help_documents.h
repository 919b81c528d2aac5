#pragma once

class QString;
class QStringList;

namespace orn {

// Copies documents that a help page links to into the temporary folder, next to
// the copy that show_help makes of the page, so that the page's relative links
// resolve there. Each template names a resource with a "%1" for the language code,
// for example ":/help/manual_%1.pdf"; the language is the one show_help takes, and
// a language without the document falls back to English, as the page does. The
// copy is named "<stem>_" + the resource's file name ("lookwright_manual_en.pdf"),
// byte for byte, and rewritten on every call. Returns the paths written.
QStringList place_help_documents(const QStringList& document_templates);

} // namespace orn
