#pragma once

#include <QLabel>

#include <functional>

class QPainter;

namespace orn {

// A label that can hand its whole painting to the owner: with a paint callback
// set, the callback draws and the label itself draws nothing.
class label : public QLabel
{
    Q_OBJECT

public:
    explicit label(QWidget* parent = nullptr);

    void set_paint_callback(std::function<void(QPainter&)> callback);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<void(QPainter&)> paint_callback;
};

} // namespace orn
