#pragma once

#include <QLabel>

namespace orn {

// A label that acts as a link: it reports a left press as a click and can
// underline itself while the pointer is over it.
class clickable_label : public QLabel
{
    Q_OBJECT

public:
    explicit clickable_label(const QString& text, QWidget* parent = nullptr);

    void set_underline_on_hover(bool underline);
    // The modifiers held at the press in progress; none outside a press.
    Qt::KeyboardModifiers pressed_modifiers() const;

signals:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void set_text_decoration(const QString& decoration);

    bool underline_on_hover = false;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

} // namespace orn
