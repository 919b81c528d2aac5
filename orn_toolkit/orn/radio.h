#pragma once

#include <QRadioButton>

namespace orn {

// A radio button in the toolkit's look, with the images under :/gui/radio/.
class radio : public QRadioButton
{
    Q_OBJECT

public:
    explicit radio(QWidget* parent = nullptr);
    explicit radio(const QString& text, QWidget* parent = nullptr);
};

} // namespace orn
