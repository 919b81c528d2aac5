#pragma once

#include <QDialog>

#include <functional>

namespace orn {

// The toolkit's About box: a header with the program's logo, the version, and a
// link that opens the list of the libraries in use.
class dialog_about : public QDialog
{
    Q_OBJECT

public:
    // `header_style` styles the header widget, whose object name is "logobg"; the
    // logo is `logo_reduction` pixels lower than the header's `header_height`.
    dialog_about(QWidget* parent, const QString& header_style, int header_height,
                 int logo_reduction);

    // What the library link runs; it is given this dialog as parent.
    void set_3rdparty_libs(std::function<void(QWidget*)> libraries);

    // Runs the library dialog with Qt and Little CMS. `with_first` adds FreeImage;
    // `with_second` stands for a second optional library that no build of this
    // program carries, and adds nothing.
    static std::function<void(QWidget*)> default_3rdparty_libs(bool with_first, bool with_second);

private:
    std::function<void(QWidget*)> show_libraries;
};

} // namespace orn
