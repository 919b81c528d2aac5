#include "orn/qt_layout.h"

#include "orn/exception.h"

#include <QThread>
#include <QWidget>

#include <algorithm>
#include <numeric>
#include <vector>

namespace orn::qt {

namespace {

// Every cell's content widget, whatever layout it lies in. A layout takes its
// entries out when it goes, so a widget outlives its cell without a stale entry.
std::map<const QWidget*, cell*>& cell_registry()
{
    static std::map<const QWidget*, cell*> registry;
    return registry;
}

void register_cell(cell& item)
{
    if (item.content_widget() != nullptr) {
        cell_registry()[item.content_widget()] = &item;
    }
}

// 25 frames a second.
constexpr int frames_per_second = 25;
constexpr unsigned long frame_microseconds = 40000;

// After this many layout runs in a row at the same parent size, the layout stops
// placing: moving and resizing children can make Qt ask again and again.
constexpr int repetition_limit = 3;

// Sizes of 0 count as this in the size hint.
constexpr int automatic_hint = 20;

} // namespace

cell* find_cell(const QWidget* widget)
{
    const auto found = cell_registry().find(widget);
    if (found == cell_registry().end()) {
        return nullptr;
    }
    // A widget made where a deleted one lay must not find the old one's cell.
    cell* item = found->second;
    return item->content_widget() == widget ? item : nullptr;
}

layout::layout(QWidget* parent, int wrap_count, bool column_major)
    : QLayout(parent), column_major(column_major), wrap_count(wrap_count)
{}

layout::layout(int wrap_count, bool column_major)
    : column_major(column_major), wrap_count(wrap_count)
{}

layout::~layout()
{
    auto& registry = cell_registry();
    for (auto it = registry.begin(); it != registry.end();) {
        if (it->second->owner == this) {
            it = registry.erase(it);
        } else {
            ++it;
        }
    }
}

void layout::add(const cell& item, int column, int row, bool grow_grid)
{
    const position at{column, row};
    cell& stored = cells.insert_or_assign(at, item).first->second;
    stored.column = column;
    stored.row = row;
    stored.owner = this;
    register_cell(stored);
    if (!grow_grid) {
        return;
    }
    grow_to(at);
    if (stored.requested_column_width > 0) {
        column_widths[column] = stored.requested_column_width;
    }
    if (stored.requested_row_height > 0) {
        row_heights[row] = stored.requested_row_height;
    }
    last = at;
}

void layout::add(const cell& item)
{
    if (item.content_widget() != nullptr) {
        adopt(item.content_widget());
    }
    while (taken(cursor)) {
        step(cursor);
    }
    const position at = cursor;
    add(item, at.column, at.row, true);

    for (int c = 0; c < item.column_span; ++c) {
        for (int r = 0; r < item.row_span; ++r) {
            if (c != 0 || r != 0) {
                cell blocked;
                blocked.blocked = true;
                add(blocked, at.column + c, at.row + r, false);
            }
        }
    }

    if (item.line_break) {
        cursor = column_major ? position{cursor.column + 1, 0} : position{0, cursor.row + 1};
    } else {
        step(cursor);
    }
    while (taken(cursor)) {
        step(cursor);
    }
}

int layout::column_width(int column) const
{
    return column_widths.value(column);
}

int layout::row_height(int row) const
{
    return row_heights.value(row);
}

void layout::set_column_width(int column, int width)
{
    grow_to({column, 0});
    column_widths[column] = width;
}

void layout::set_row_height(int row, int height)
{
    grow_to({0, row});
    row_heights[row] = height;
}

int layout::column_count() const
{
    return column_widths.size();
}

int layout::row_count() const
{
    return row_heights.size();
}

QPoint layout::last_added() const
{
    return QPoint(last.column, last.row);
}

void layout::addItem(QLayoutItem* item)
{
    // The item is ours now; it must not leak on the way out.
    delete item;
    throw exception("This layout works different. Use add() instead.");
}

int layout::count() const
{
    return int(std::count_if(cells.begin(), cells.end(), [](const auto& entry) {
        return entry.second.background_widget() != nullptr ||
               entry.second.content_widget() != nullptr;
    }));
}

QLayoutItem* layout::itemAt(int index) const
{
    if (index < 0) {
        return nullptr;
    }
    for (const auto& entry : cells) {
        const cell& item = entry.second;
        if (item.background_widget() == nullptr && item.content_widget() == nullptr) {
            continue;
        }
        if (index-- == 0) {
            return const_cast<cell*>(&item);
        }
    }
    return nullptr;
}

// Cells stay where they were put; the layout owns them for its whole life.
QLayoutItem* layout::takeAt(int index)
{
    Q_UNUSED(index)
    return nullptr;
}

QSize layout::minimumSize() const
{
    return QSize(std::accumulate(column_widths.begin(), column_widths.end(), 0),
                 std::accumulate(row_heights.begin(), row_heights.end(), 0));
}

// Width and height are crossed here, unlike in minimumSize(): the rows give the
// width and the columns the height. Windows built on this layout rely on it.
QSize layout::sizeHint() const
{
    const auto hinted_sum = [](const QVector<int>& sizes) {
        int sum = 0;
        for (const int size : sizes) {
            sum += size == 0 ? automatic_hint : size;
        }
        return sum;
    };
    return QSize(hinted_sum(row_heights), hinted_sum(column_widths));
}

void layout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    QWidget* parent = parentWidget();
    if (parent == nullptr) {
        return;
    }
    const QSize size = parent->size();
    if (size == last_parent_size) {
        if (repetitions > repetition_limit) {
            return;
        }
        ++repetitions;
    } else {
        repetitions = 0;
    }
    last_parent_size = size;

    float available_width = float(size.width());
    int automatic_columns = 0;
    for (const int width : column_widths) {
        if (width != 0) {
            available_width -= float(width);
        } else {
            ++automatic_columns;
        }
    }
    float available_height = float(size.height());
    int automatic_rows = 0;
    for (const int height : row_heights) {
        if (height != 0) {
            available_height -= float(height);
        } else {
            ++automatic_rows;
        }
    }
    const auto column_extent = [&](int column) {
        const int width = column_widths[column];
        return width != 0 ? float(width) : available_width / float(automatic_columns);
    };
    const auto row_extent = [&](int row) {
        const int height = row_heights[row];
        return height != 0 ? float(height) : available_height / float(automatic_rows);
    };

    float y = 0;
    for (int row = 0; row < row_heights.size(); ++row) {
        float x = 0;
        for (int column = 0; column < column_widths.size(); ++column) {
            const auto [found, made] = cells.try_emplace(position{column, row});
            cell& item = found->second;
            if (made) {
                item.column = column;
                item.row = row;
                item.owner = this;
            }
            if (!item.blocked) {
                float width = 0;
                for (int c = column; c < column + item.column_span && c < column_widths.size();
                     ++c) {
                    width += c == column && item.own_width > 0 ? float(item.own_width)
                                                               : column_extent(c);
                }
                float height = 0;
                for (int r = row; r < row + item.row_span && r < row_heights.size(); ++r) {
                    height +=
                        r == row && item.own_height > 0 ? float(item.own_height) : row_extent(r);
                }
                place(item, x, y, width, height);
            }
            x += column_extent(column);
        }
        y += row_extent(row);
    }
}

namespace {

// One axis of a cell's placement: the start and length of the content inside the
// area [start, start + extent).
struct span
{
    float start;
    float length;
};

span place_on_axis(float start, float extent, float fixed, float margin_before, float margin_after,
                   float padding_before, float padding_after)
{
    if (fixed <= 0) {
        span result{start, extent};
        if (margin_before >= 0) {
            result.start += margin_before;
            result.length -= margin_before;
        }
        if (margin_after >= 0) {
            result.length -= margin_after;
        }
        result.start += padding_before;
        result.length -= padding_before + padding_after;
        return result;
    }
    if (margin_before >= 0) {
        return {start + margin_before, fixed};
    }
    if (margin_after >= 0) {
        return {start + extent - fixed - margin_after, fixed};
    }
    return {start + extent * 0.5f - fixed * 0.5f, fixed};
}

} // namespace

void layout::place(cell& item, float x, float y, float width, float height)
{
    const span across = place_on_axis(x, width, item.fixed_width, item.margin_left,
                                      item.margin_right, item.padding_left, item.padding_right);
    const span down = place_on_axis(y, height, item.fixed_height, item.margin_top,
                                    item.margin_bottom, item.padding_top, item.padding_bottom);
    const int left = int(across.start);
    const int top = int(down.start);
    const int content_width = std::max(0, int(across.length));
    const int content_height = std::max(0, int(down.length));
    item.setGeometry(QRect(left, top, content_width, content_height));

    QWidget* content = item.content_widget();
    if (content != nullptr) {
        content->move(left + item.offset_x, top + item.offset_y);
        content->setFixedSize(content_width, content_height);
    }
    QWidget* backdrop = item.background_widget();
    if (backdrop != nullptr) {
        backdrop->move(int(across.start - item.padding_left), int(down.start - item.padding_top));
        backdrop->setFixedSize(int(float(content_width) + item.padding_left + item.padding_right),
                               int(float(content_height) + item.padding_top + item.padding_bottom));
        adopt(backdrop);
    }
    if (content != nullptr) {
        adopt(content);
        content->raise();
    }
}

// Gives the widget the layout's parent widget, and shows it if the parent is on
// screen already (a widget that changes parent is hidden until shown).
void layout::adopt(QWidget* widget)
{
    QWidget* parent = parentWidget();
    if (parent == nullptr || widget->parentWidget() == parent) {
        return;
    }
    const bool hidden_on_purpose =
        widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
    widget->setParent(parent);
    if (parent->isVisible() && !hidden_on_purpose) {
        widget->show();
    }
}

bool layout::taken(const position& at) const
{
    const auto found = cells.find(at);
    return found != cells.end() &&
           (found->second.blocked || found->second.content_widget() != nullptr);
}

void layout::step(position& at) const
{
    int& along = column_major ? at.row : at.column;
    int& across = column_major ? at.column : at.row;
    ++along;
    if (wrap_count != 0 && along >= wrap_count) {
        ++across;
        along = 0;
    }
}

void layout::grow_to(const position& at)
{
    if (column_widths.size() <= at.column) {
        column_widths.resize(at.column + 1);
    }
    if (row_heights.size() <= at.row) {
        row_heights.resize(at.row + 1);
    }
}

void layout::animate(int column, int target_width, int row, int target_height, float seconds)
{
    struct track
    {
        int* size;
        int target;
        int step;
        bool passed;
    };
    std::vector<track> tracks;
    const auto add_track = [&](QVector<int>& sizes, int index, int target) {
        if (index >= 0 && index < sizes.size() && sizes[index] != target) {
            tracks.push_back({&sizes[index], target, 0, false});
        }
    };
    add_track(column_widths, column, target_width);
    add_track(row_heights, row, target_height);
    if (tracks.empty()) {
        return;
    }

    if (seconds > 0) {
        for (track& t : tracks) {
            t.step = int(float(*t.size - t.target) / seconds / float(frames_per_second));
        }
        const int steps = int(seconds * float(frames_per_second));
        for (int i = 0; i < steps; ++i) {
            for (track& t : tracks) {
                const int next = *t.size - t.step;
                // A step past the target ends that size's run early.
                t.passed =
                    t.passed || (t.step > 0 && next < t.target) || (t.step < 0 && next > t.target);
                if (!t.passed) {
                    *t.size = next;
                }
            }
            if (std::all_of(tracks.begin(), tracks.end(),
                            [](const track& t) { return t.passed; })) {
                break;
            }
            nudge_window();
            QThread::usleep(frame_microseconds);
        }
    }
    for (const track& t : tracks) {
        *t.size = t.target;
    }
    nudge_window();
}

// The layout runs when its window changes size: one pixel more and back, then a
// synchronous repaint, shows the new sizes at once even while the thread is blocked.
void layout::nudge_window()
{
    QWidget* parent = parentWidget();
    if (parent == nullptr) {
        return;
    }
    QWidget* window = parent->window();
    const QSize size = window->size();
    window->resize(size.width(), size.height() + 1);
    window->resize(size);
    window->repaint();
}

} // namespace orn::qt
