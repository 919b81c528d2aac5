#include "app/file_dialog_palette.h"

#include "orn/palette.h"
#include "orn/pixel_argb.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QPalette>

namespace {

QColor colour(orn::pixel_argb pixel)
{
    return QColor(pixel.r, pixel.g, pixel.b);
}

// The text colour of a disabled line edit in the toolkit's sheets.
constexpr orn::pixel_argb disabled_text(100, 100, 100);

QPalette dark_palette()
{
    QPalette dark = QApplication::palette();
    dark.setColor(QPalette::Window, colour(orn::palette::ground));
    dark.setColor(QPalette::Button, colour(orn::palette::ground));
    dark.setColor(QPalette::Base, colour(orn::palette::edit_ground));
    dark.setColor(QPalette::AlternateBase, colour(orn::palette::input_ground));
    dark.setColor(QPalette::Highlight, colour(orn::palette::border));
    dark.setColor(QPalette::HighlightedText, colour(orn::palette::icon_highlight));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText}) {
        dark.setColor(role, colour(orn::palette::text));
        dark.setColor(QPalette::Disabled, role, colour(disabled_text));
    }
    return dark;
}

// The window's sheet marks every widget below it as styled by a sheet, and such
// widgets don't take their parent's palette: each part of the dialog gets its own.
class dark_file_dialog_watcher : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            if (auto* dialog = qobject_cast<QFileDialog*>(watched)) {
                const QPalette dark = dark_palette();
                dialog->setPalette(dark);
                for (QWidget* part : dialog->findChildren<QWidget*>()) {
                    part->setPalette(dark);
                }
            }
        }
        return false;
    }
};

} // namespace

void use_dark_file_dialogs(QObject* owner)
{
    qApp->installEventFilter(new dark_file_dialog_watcher(owner));
}
