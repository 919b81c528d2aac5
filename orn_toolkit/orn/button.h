#pragma once

#include <QPushButton>
#include <QRect>

namespace orn {

// A plain image button that flashes a light frame for a moment when released:
// around the whole button, or around a given rectangle of it.
class button : public QPushButton
{
    Q_OBJECT

public:
    button(const QString& text, QWidget* parent = nullptr);
    button(QWidget* parent, const QRect& rect);

    bool is_highlighted() const { return highlighted_; }
    QRect highlight_rect() const { return highlight_rect_; }

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

public slots:
    // Ends the flash; the release starts a single shot to it.
    void deaktivate_highlight();

private:
    bool highlighted_ = false;
    QRect highlight_rect_;
};

} // namespace orn
