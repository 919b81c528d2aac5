#include "app/dialog_settings.h"

#include "orn/combobox.h"
#include "orn/current_language.h"
#include "orn/message_box.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QSettings>

namespace {

// A row's display texts with the values they store, in the order the row lists them.
using choices = QList<QPair<QString, QString>>;

// The known value that `stored` stands for: itself if one of `tested` names it,
// else `rest`, which takes whatever is left over.
QString shown_value(const QString& stored, const QStringList& tested, const QString& rest)
{
    return tested.contains(stored) ? stored : rest;
}

void fill_row(QFormLayout* layout, const QString& label, orn::combobox* combo, const choices& items,
              int minimum_width, const QString& value)
{
    for (const auto& item : items) {
        combo->addItem(item.first, item.second);
    }
    combo->setEditable(false);
    combo->setFixedHeight(22);
    combo->setMinimumWidth(minimum_width);
    layout->addRow(new QLabel(label), combo);
    combo->setCurrentIndex(
        combo->findData(value, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

} // namespace

dialog_settings::dialog_settings(QSettings* settings, QWidget* parent)
    : QDialog(parent, Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint),
      settings(settings),
      format_combo(new orn::combobox(this)),
      colorspace_combo(new orn::combobox(this)),
      language_combo(new orn::combobox(this))
{
    setWindowTitle(tr("Settings"));
    auto* layout = new QFormLayout(this);
    layout->setContentsMargins(20, 10, 20, 10);
    layout->setSpacing(10);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    setStyleSheet(
        QStringLiteral("QDialog{background-color:rgb(47,47,47); color:rgb(198,213,210);}"));

    // Each row is connected only after its current value is selected, so that
    // opening the dialog stores nothing; a stored text that no row knows stays
    // stored until the user changes something.
    const QString format =
        settings->value(QStringLiteral("format"), QStringLiteral("separate")).toString();
    fill_row(layout, tr("Format"), format_combo,
             {{tr("Separate Styles"), QStringLiteral("separate")},
              {tr("Stylepack"), QStringLiteral("stylepack")},
              {tr("Stylepack with Category"), QStringLiteral("stylepack_category")}},
             220,
             shown_value(format, {QStringLiteral("separate"), QStringLiteral("stylepack")},
                         QStringLiteral("stylepack_category")));
    connect(format_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &dialog_settings::save_settings);

    // The colour spaces and languages are named alike in every language.
    const QString colorspace =
        settings->value(QStringLiteral("colorspace"), QStringLiteral("raw")).toString();
    fill_row(layout, tr("Color Space"), colorspace_combo,
             {{QStringLiteral("RAW"), QStringLiteral("raw")},
              {QStringLiteral("JPG/TIF/etc. Adobe RGB"), QStringLiteral("adobe")},
              {QStringLiteral("JPG/TIF/etc. sRGB"), QStringLiteral("srgb")},
              {QStringLiteral("JPG/TIF/etc. ProPhoto RGB"), QStringLiteral("prophoto")},
              {QStringLiteral("JPG/TIF/etc. Wide Gamut RGB"), QStringLiteral("widegamut")}},
             220,
             shown_value(colorspace,
                         {QStringLiteral("adobe"), QStringLiteral("srgb"),
                          QStringLiteral("prophoto"), QStringLiteral("widegamut")},
                         QStringLiteral("raw")));
    connect(colorspace_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &dialog_settings::save_settings);

    fill_row(layout, tr("Language"), language_combo,
             {{QStringLiteral("English"), QStringLiteral("en")},
              {QStringLiteral("Deutsch"), QStringLiteral("de")}},
             120,
             shown_value(orn::current_language(QStringLiteral("lang")), {QStringLiteral("de")},
                         QStringLiteral("en")));
    connect(language_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &dialog_settings::save_settings);

    setFixedSize(sizeHint());
}

void dialog_settings::save_settings()
{
    // All three at once: the first change also pins the language, which until then
    // followed the system's.
    settings->setValue(QStringLiteral("format"),
                       format_combo->currentData(Qt::UserRole).toString());
    settings->setValue(QStringLiteral("colorspace"),
                       colorspace_combo->currentData(Qt::UserRole).toString());
    settings->setValue(QStringLiteral("lang"),
                       language_combo->currentData(Qt::UserRole).toString());
}

bool confirm_language_change(QWidget* parent, const QString& previous)
{
    if (orn::current_language(QStringLiteral("lang")) == previous) {
        return false;
    }
    const QMessageBox::StandardButton answer = orn::message_box::question(
        parent, QObject::tr("Application language changed"),
        QObject::tr("The application language has been changed.\nThe application needs to be "
                    "restarted to use the new language."),
        QObject::tr("Continue working"), QObject::tr("Quit now"), QMessageBox::Yes);
    if (answer == QMessageBox::No) {
        QCoreApplication::quit();
        return true;
    }
    return false;
}
