#pragma once

#include <QLayoutItem>
#include <QPointer>
#include <QRect>

#include <memory>

class QWidget;

namespace orn::qt {

class layout;

// One unit of content in an orn::qt::layout: a widget with margins, paddings, an
// optional fixed size, spans and a backdrop widget behind it. Cells are values:
// the layout stores a copy of what is added, and copies share the backdrop.
class cell : public QLayoutItem
{
public:
    // Makes a new parentless backdrop; the layout gives it its parent widget.
    explicit cell(QWidget* content = nullptr);

    QWidget* background_widget() const;
    QWidget* content_widget() const;

    // All four sides at once.
    void set_margin(float value);
    void set_padding(float value);

    // Animations of the cell's column, row or both, blocking the thread meanwhile.
    void animate_width(int target, float seconds);
    void animate_height(int target, float seconds);
    void animate_size(int target_width, int target_height, float seconds);

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    QSize maximumSize() const override;
    Qt::Orientations expandingDirections() const override;
    void setGeometry(const QRect& rect) override;
    QRect geometry() const override;
    bool isEmpty() const override;
    QWidget* widget() override;

    // The position is covered by the span of another cell.
    bool blocked = false;
    // Distances to the cell's area; negative means not set.
    float margin_left = -1;
    float margin_right = -1;
    float margin_top = -1;
    float margin_bottom = -1;
    // Extra distances inside the backdrop.
    float padding_left = 0;
    float padding_right = 0;
    float padding_top = 0;
    float padding_bottom = 0;
    // A fixed size of the content; not positive means it fills the area.
    float fixed_width = -1;
    float fixed_height = -1;
    int column_span = 1;
    int row_span = 1;
    // Written to the column or row when the cell is added, if positive.
    int requested_column_width = -1;
    int requested_row_height = -1;
    // The size in the first column or row of a span, if positive.
    int own_width = 0;
    int own_height = 0;
    // A shift of the content.
    int offset_x = 0;
    int offset_y = 0;
    // The next automatic position starts a new line.
    bool line_break = false;
    // Set by the layout.
    int row = 0;
    int column = 0;
    qt::layout* owner = nullptr;

private:
    // Owns the backdrop until a widget adopts it; shared by the copies of a cell.
    struct backdrop_owner
    {
        QPointer<QWidget> widget;
        ~backdrop_owner();
    };

    std::shared_ptr<backdrop_owner> background;
    QPointer<QWidget> content;
    QRect area;
};

} // namespace orn::qt
