#pragma once

#include "orn/qt_cell.h"

#include <QLayout>
#include <QVector>

#include <map>

namespace orn::qt {

// The toolkit's own grid layout. Cells are placed explicitly or at a cursor that
// runs along rows (or columns) and wraps after `wrap_count` positions. A column
// width or row height of 0 is automatic: the automatic ones share evenly what the
// fixed ones leave of the parent widget.
//
// Widgets go in through add(); QLayout's addItem() and so addWidget() throw.
class layout : public QLayout
{
public:
    layout(QWidget* parent, int wrap_count, bool column_major);
    explicit layout(int wrap_count = 0, bool column_major = false);
    ~layout() override;

    // Stores a copy of `item` at the position. With `grow_grid` the column and row
    // lists grow to reach it, requested sizes are written and it becomes the last
    // added position; without, only the cell is stored (as for a span's blocked
    // positions).
    void add(const cell& item, int column, int row, bool grow_grid);
    // Stores a copy at the cursor, blocks out its span and moves the cursor on.
    void add(const cell& item);

    int column_width(int column) const;
    int row_height(int row) const;
    void set_column_width(int column, int width);
    void set_row_height(int row, int height);
    int column_count() const;
    int row_count() const;
    QPoint last_added() const;

    // Takes the column's width and the row's height to the targets in 25 steps a
    // second; a negative column or row leaves that one alone. Blocks the thread
    // and repaints the window after each step, which runs the layout again.
    void animate(int column, int target_width, int row, int target_height, float seconds);

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

private:
    struct position
    {
        int column;
        int row;
        bool operator<(const position& other) const
        {
            return row != other.row ? row < other.row : column < other.column;
        }
    };

    bool taken(const position& at) const;
    void step(position& at) const;
    void grow_to(const position& at);
    void place(cell& item, float x, float y, float width, float height);
    void adopt(QWidget* widget);
    void nudge_window();

    std::map<position, cell> cells;
    QVector<int> row_heights;
    QVector<int> column_widths;
    position cursor{0, 0};
    position last{0, 0};
    QSize last_parent_size;
    int repetitions = 0;
    bool column_major;
    int wrap_count;
};

// The cell that holds `widget` as content, in whatever layout; null if none does.
cell* find_cell(const QWidget* widget);

} // namespace orn::qt
