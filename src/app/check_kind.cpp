#include "app/check_kind.h"

bool admit_preset(check_kinds& checks, const preset_findings& found, const ask_about_kind& ask)
{
    // A preset under any Skip All goes before it can raise a warning of another
    // kind: the user said no to it already.
    for (preset_kind kind : all_preset_kinds) {
        const std::size_t i = kind_index(kind);
        if (found[i] && checks[i].skip_all) {
            return false;
        }
    }

    for (preset_kind kind : all_preset_kinds) {
        check_kind& check = checks[kind_index(kind)];
        if (!found[kind_index(kind)] || !check.ask_again) {
            continue;
        }
        switch (ask(kind)) {
        case QMessageBox::YesToAll:
            check.ask_again = false;
            break;
        case QMessageBox::No:
            return false;
        case QMessageBox::NoToAll:
            check.skip_all = true;
            return false;
        default:
            // "Convert", and a box closed without an answer, go on.
            break;
        }
    }
    return true;
}
