#pragma once

#include <QLineEdit>

namespace orn {

// A line edit (an editable combo box's, for one) that selects all its text when it
// gains the focus, so that typing replaces the value.
class combobox_lineedit : public QLineEdit
{
    Q_OBJECT

public:
    explicit combobox_lineedit(QWidget* parent = nullptr);

protected:
    void focusInEvent(QFocusEvent* event) override;
};

} // namespace orn
