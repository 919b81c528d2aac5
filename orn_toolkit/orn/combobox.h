#pragma once

#include <QComboBox>

namespace orn {

// A dark combo box that ignores the mouse wheel unless told otherwise, so that
// scrolling past it never changes a setting by accident.
class combobox : public QComboBox
{
    Q_OBJECT

public:
    explicit combobox(QWidget* parent = nullptr);

    void set_ignore_wheel(bool ignore) { ignore_wheel_ = ignore; }

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool ignore_wheel_ = true;
};

} // namespace orn
