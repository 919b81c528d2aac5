#pragma once

#include <QDialog>

class QVBoxLayout;

namespace orn {

// Lists the libraries a program uses, one block each: the name, a note with the
// licence and where to find the source, and optionally a longer text from the
// resources in a read-only box. Qt's block is always the first.
class dialog_3rd_part_lib_info : public QDialog
{
    Q_OBJECT

public:
    explicit dialog_3rd_part_lib_info(QWidget* parent);

    // `note` is rich text; an empty `text_resource` shows no text box.
    void add_library(const QString& name, const QString& note,
                     const QString& text_resource = QString());

    // A link in a note, in the toolkit's link colour.
    static QString library_link(const QString& address);

    // Runs at the size the blocks need: the dialog can't be resized.
    int exec() override;

private:
    QVBoxLayout* rows;
};

} // namespace orn
