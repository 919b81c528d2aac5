#pragma once

#include <QPushButton>

namespace orn {

// A push button that takes whatever is dragged over it, so that a drop on it
// reaches its owner; its look comes entirely from whoever makes it.
class button_custom : public QPushButton
{
    Q_OBJECT

public:
    explicit button_custom(QWidget* parent = nullptr);
    button_custom(const QString& text, QWidget* parent = nullptr);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
};

} // namespace orn
