#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

#include "editor/form_rows.h"

namespace Forms {

namespace {

constexpr int MostPerColumn = 24;  // of a grid
constexpr int WideForm = 3;        // form widths of a form with a list
constexpr int LeastRows = 3;       // of a list in a form that is too high
// A form is no higher and no wider, as a screen of 1080 lines at 150 % shows it, where it need not be.
constexpr UI::Size PlainSpacings{158, 80};

using Cells = std::vector<std::unique_ptr<Cell>>;

// What the largest of the cells needs.
UI::Size GetLargest(const Cells& cells) {
    UI::Size largest;
    for (const auto& cell : cells) {
        const UI::Size least = cell->GetLeast();
        largest = {std::max(largest.Width, least.Width), std::max(largest.Height, least.Height)};
    }
    return largest;
}

class GroupLayout {
public:
    // The columns of a grid take no more than `room`, as far as the height goes, and the width in any case.
    GroupLayout(Group& group, const UI::StyleTable& style, UI::Size room)
        : group(group), metrics(style.Metrics), columnGap(style.UncheckedRadio.Gap), room(room) {
        for (const auto& row : group.Rows) {
            labelWidth = std::max(labelWidth, GetLargest(row->Labels).Width);
            if (group.IsAligned && row->Kind == RowKind::Line) WidenColumns(*row, 1);
        }
        for (const auto& row : group.Rows) {
            if (group.IsAligned && row->Kind == RowKind::Line) WidenColumns(*row, 2);
        }
    }

    // The width of the box that shows everything whole.
    int GetLeastWidth() const {
        int least = 0;
        for (const auto& row : group.Rows) least = std::max(least, GetLeastWidth(*row));
        const UI::Padding& padding = group.Box.GetStyle().ContentPadding;
        least += padding.Left + padding.Right;
        for (const std::wstring& caption : group.Sizing) least = std::max(least, group.Box.Measure(caption).Width);
        return std::max(least, group.Box.Measure(group.Box.GetText()).Width);
    }

    // The box, below `top` with its caption, and all in it; returns the box's lower edge.
    int Place(int x, int top, int width) const {
        // Without a caption the frame itself stands where the caption of others does.
        const int y = top + (group.Box.GetText().empty() ? metrics.SmallSpacing : group.Box.GetOverhang());
        const UI::Padding& padding = group.Box.GetStyle().ContentPadding;
        int bottom = y + padding.Top;
        bool isFirst = true;
        for (const auto& row : group.Rows) {
            if (!row->IsVisible()) continue;
            if (!isFirst) bottom += metrics.SmallSpacing;
            isFirst = false;
            bottom = PlaceRow(*row, x + padding.Left, bottom, width - padding.Left - padding.Right);
        }
        group.Box.SetRect(x, y, width, bottom + padding.Bottom - y);
        return group.Box.GetBottom();
    }

private:
    // Where the cells of a row begin.
    int GetIndent(const Row& row) const { return row.Labels.empty() ? 0 : labelWidth + metrics.Spacing; }
    // As the cells of the row with that span need it.
    void WidenColumns(const Row& row, int span) {
        std::size_t column = 0;
        for (const auto& cell : row.Cells) {
            const std::size_t end = column + static_cast<std::size_t>(cell->Span);
            columns.resize(std::max(columns.size(), end));
            const int missing = cell->GetLeast().Width - GetWidth(*cell, column);
            if (!cell->Stretches && cell->Span == span) columns[end - 1] += std::max(missing, 0);
            column = end;
        }
    }
    // The width of a cell that begins in that column, before any is stretched.
    int GetWidth(const Cell& cell, std::size_t column) const {
        if (!group.IsAligned || cell.Stretches) return cell.GetLeast().Width;
        int width = (cell.Span - 1) * metrics.SmallSpacing;
        for (int i = 0; i < cell.Span; ++i) width += columns[column + static_cast<std::size_t>(i)];
        return width;
    }

    int GetLeastWidth(const Row& row) const {
        int width = 0;
        if (row.Kind == RowKind::Line) {
            std::size_t column = 0;
            for (const auto& cell : row.Cells) {
                width += GetWidth(*cell, column) + (column > 0 ? metrics.SmallSpacing : 0);
                column += static_cast<std::size_t>(cell->Span);
            }
        } else {
            const int perColumn = GetMostPerColumn(row);
            width = (static_cast<int>(row.Cells.size()) + perColumn - 1) / perColumn * GetStep(row);
        }
        return GetIndent(row) + width;
    }

    int PlaceRow(const Row& row, int x, int y, int width) const {
        const int indent = GetIndent(row);
        const int bottom = row.Kind == RowKind::Line ? PlaceLine(row, x + indent, y, width - indent)
                                                     : PlaceColumns(row, x + indent, y, width - indent);
        for (const auto& label : row.Labels) {
            const int height = label->GetLeast().Height;
            const int lineHeight = row.Kind == RowKind::Line ? bottom - y : height;
            label->Place(x, y + (lineHeight - height) / 2, labelWidth, height);
        }
        return bottom;
    }

    // With the width of each before any is stretched.
    template <class Visit>
    void ForEachVisible(const Row& row, const Visit& visit) const {
        std::size_t column = 0;
        for (const auto& cell : row.Cells) {
            if (cell->IsVisible) visit(*cell, GetWidth(*cell, column));
            column += static_cast<std::size_t>(cell->Span);
        }
    }

    int PlaceLine(const Row& row, int x, int y, int width) const {
        int height = GetLargest(row.Labels).Height;
        int left = width;
        int stretching = 0;
        ForEachVisible(row, [&](const Cell& cell, int cellWidth) {
            height = std::max(height, cell.GetLeast().Height);
            left -= cellWidth + (left == width ? 0 : metrics.SmallSpacing);
            stretching += cell.Stretches ? 1 : 0;
        });
        int at = x;
        ForEachVisible(row, [&](Cell& cell, int cellWidth) {
            if (cell.Stretches && left > 0) cellWidth += left / stretching;
            const int cellHeight = cell.GetLeast().Height;
            cell.Place(at, y + (height - cellHeight) / 2, cellWidth, cellHeight);
            at += cellWidth + metrics.SmallSpacing;
        });
        return y + height;
    }

    int GetMostPerColumn(const Row& row) const {
        const UI::Padding& padding = group.Box.GetStyle().ContentPadding;
        const int around = group.Box.GetOverhang() + padding.Top + padding.Bottom + metrics.Spacing;
        const int high =
            std::clamp((room.Height - around) / (GetLargest(row.Cells).Height + columnGap), 1, MostPerColumn);
        const int beside = GetIndent(row) + padding.Left + padding.Right;
        const int columnCount = std::max(1, (room.Width - beside) / GetStep(row));
        return std::max(high, (static_cast<int>(row.Cells.size()) + columnCount - 1) / columnCount);
    }
    // What a column of a grid takes.
    int GetStep(const Row& row) const { return GetLargest(row.Cells).Width + metrics.SmallSpacing; }

    int PlaceColumns(const Row& row, int x, int y, int width) const {
        std::vector<Cell*> cells;
        for (const auto& cell : row.Cells) {
            if (cell->IsVisible) cells.push_back(cell.get());
        }
        const int count = static_cast<int>(cells.size());
        const int height = GetLargest(row.Cells).Height;
        const int step = GetStep(row);
        const int perColumn = GetMostPerColumn(row);
        const int least = (count + perColumn - 1) / perColumn;
        const int columnCount = std::max(least, row.Kind == RowKind::Columns ? width / step : 1);
        const int lines = row.Kind == RowKind::Columns ? (count + columnCount - 1) / columnCount : perColumn;
        for (int i = 0; i < count; ++i) {
            const int top = y + i % lines * (height + columnGap);
            cells[static_cast<std::size_t>(i)]->Place(x + i / lines * step, top, step, height);
        }
        return y + std::min(lines, count) * (height + columnGap) - columnGap;
    }

    Group& group;
    const UI::LayoutMetrics& metrics;
    int columnGap;
    UI::Size room;
    int labelWidth = 0;
    std::vector<int> columns;
};

// A whole number of form widths, wide enough for all groups; no more than `most` where they don't need it.
int GetGroupWidth(const std::vector<GroupLayout>& layouts, bool isWide, int most, const UI::LayoutMetrics& metrics) {
    int least = 0;
    for (const GroupLayout& layout : layouts) least = std::max(least, layout.GetLeastWidth());
    int width = metrics.FormWidth;
    if (isWide) width = WideForm * metrics.FormWidth + (WideForm - 1) * metrics.Spacing;
    while (width < least) width += metrics.Spacing + metrics.FormWidth;
    return std::min(width, std::max(least, most));
}

bool HasWideCell(const Group& group) {
    for (const auto& row : group.Rows) {
        if (std::any_of(row->Cells.begin(), row->Cells.end(), [](const auto& cell) { return cell->IsWide; }))
            return true;
    }
    return false;
}

// The column of each group, of so many as even as they go.
std::vector<int> DivideInto(int count, const std::vector<int>& heights) {
    const int total = std::accumulate(heights.begin(), heights.end(), 0);
    std::vector<int> columns;
    int above = 0;
    for (const int height : heights) {
        const int middle = above + height / 2;
        columns.push_back(std::min(middle * count / total, count - 1));
        above += height;
    }
    return columns;
}

int GetTallest(const std::vector<int>& heights, const std::vector<int>& columns) {
    std::vector<int> sums(heights.size());
    for (std::size_t i = 0; i < heights.size(); ++i) sums[static_cast<std::size_t>(columns[i])] += heights[i];
    return *std::max_element(sums.begin(), sums.end());
}

// Each column as wide as one of its own would be, or, where that is more than `most`, as it needs to be, with its share
// of what is left.
std::vector<int> GetColumnWidths(const std::vector<GroupLayout>& layouts, const std::vector<int>& columns, int width,
                                 int most, const UI::LayoutMetrics& metrics) {
    std::vector<int> widths(static_cast<std::size_t>(columns.back()) + 1, width);
    const int gaps = columns.back() * metrics.Spacing;
    if (std::accumulate(widths.begin(), widths.end(), gaps) <= most) return widths;
    std::fill(widths.begin(), widths.end(), metrics.FormWidth);
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        int& column = widths[static_cast<std::size_t>(columns[i])];
        column = std::max(column, layouts[i].GetLeastWidth());
    }
    int left = most - std::accumulate(widths.begin(), widths.end(), gaps);
    for (std::size_t i = 0; i < widths.size() && left > 0; ++i) {
        const int share = left / static_cast<int>(widths.size() - i);
        const int added = std::clamp(width - widths[i], 0, share);
        widths[i] += added;
        left -= added;
    }
    return widths;
}

// The left ones from the left edge on, the right ones up to the right edge; returns their lower edge.
int PlaceButtons(const BottomButtons& buttons, int left, int y, int right, const UI::LayoutMetrics& metrics) {
    int x = left;
    const auto place = [&](UI::Controls::Button* button) {
        button->SetRect(x, y, metrics.OkButtonWidth, metrics.OkButtonHeight);
        x += metrics.OkButtonWidth + metrics.Spacing;
    };
    for (UI::Controls::Button* button : buttons.Left) place(button);
    const int count = static_cast<int>(buttons.Right.size());
    x = right - count * metrics.OkButtonWidth - (count - 1) * metrics.Spacing;
    for (UI::Controls::Button* button : buttons.Right) place(button);
    return y + metrics.OkButtonHeight;
}

}  // namespace

bool Row::IsVisible() const {
    return std::any_of(Cells.begin(), Cells.end(), [](const auto& cell) { return cell->IsVisible; });
}

namespace {

// How groups stand: the column of each, and the width of each column.
struct Plan {
    std::vector<int> Columns;
    std::vector<int> Widths;
};

// Finds a place for the groups of a form in the room that there is for them.
class Planner {
public:
    Planner(const UI::Window& window, const Groups& groups, UI::Size room)
        : metrics(window.GetStyle().Metrics), room(room) {
        bool isWide = false;
        for (const auto& group : groups) {
            if (!group->IsVisible) continue;
            layouts.emplace_back(*group, window.GetStyle(), room);
            visible.push_back(group.get());
            isWide = isWide || HasWideCell(*group);
        }
        width = GetGroupWidth(layouts, isWide, room.Width, metrics);
        ForEachCell([this](const auto& cell) { mostRows = std::max(mostRows, cell->GetRows()); });
    }

    // Places the groups so that they fit, in as few columns as can be and with as many rows of the lists as can be
    // then; the lower edge, or none if they don't.
    std::optional<int> Fit() {
        for (int count = 1; count == 1 || count <= static_cast<int>(layouts.size()); ++count) {
            for (int rows = mostRows; rows >= std::min(mostRows, LeastRows); --rows) {
                LimitRows(rows);
                plan = MakePlan(count);
                if (count > 1 && GetWidth() > room.Width) return std::nullopt;
                if (IsTooHigh()) continue;
                if (const int bottom = Place(metrics.WindowPadding.Top); bottom <= room.Height) return bottom;
            }
        }
        return std::nullopt;
    }
    // As many columns as there is room for, of lists with few rows.
    void Squeeze() {
        LimitRows(LeastRows);
        plan = MakePlan(1);
        for (int count = 2; count <= static_cast<int>(layouts.size()); ++count) {
            Plan before = std::exchange(plan, MakePlan(count));
            if (GetWidth() <= room.Width) continue;
            plan = std::move(before);
            return;
        }
    }
    // Places the groups from `top` on; returns where something else can stand below them.
    int Place(int top) const {
        std::vector<int> bottoms(plan.Widths.size(), top);
        for (std::size_t i = 0; i < layouts.size(); ++i) {
            const auto column = static_cast<std::size_t>(plan.Columns[i]);
            const int left = metrics.WindowPadding.Left + plan.Columns[i] * metrics.Spacing;
            const int x = std::accumulate(plan.Widths.begin(), plan.Widths.begin() + plan.Columns[i], left);
            bottoms[column] = layouts[i].Place(x, bottoms[column], plan.Widths[column]) + metrics.Spacing;
        }
        return *std::max_element(bottoms.begin(), bottoms.end());
    }
    int GetWidth() const {
        const int gaps = (static_cast<int>(plan.Widths.size()) - 1) * metrics.Spacing;
        return std::accumulate(plan.Widths.begin(), plan.Widths.end(), gaps);
    }

private:
    template <class Visit>
    void ForEachCell(const Visit& visit) const {
        for (const Group* group : visible) {
            for (const auto& row : group->Rows) std::for_each(row->Cells.begin(), row->Cells.end(), visit);
        }
    }
    void LimitRows(int most) {
        ForEachCell([most](const auto& cell) { cell->LimitRows(most); });
        heights.clear();
        for (const GroupLayout& layout : layouts)
            heights.push_back(layout.Place(metrics.WindowPadding.Left, 0, width) + metrics.Spacing);
    }
    bool IsTooHigh() const {
        return !layouts.empty() && metrics.WindowPadding.Top + GetTallest(heights, plan.Columns) > room.Height;
    }
    Plan MakePlan(int count) const {
        if (layouts.empty()) return {{}, {width}};
        Plan made{DivideInto(count, heights), {}};
        made.Widths = GetColumnWidths(layouts, made.Columns, width, room.Width, metrics);
        return made;
    }

    const UI::LayoutMetrics& metrics;
    UI::Size room;
    std::vector<GroupLayout> layouts;
    std::vector<const Group*> visible;
    int width = 0;
    int mostRows = 0;  // of any list
    std::vector<int> heights;
    Plan plan;
};

template <class Visit>
void ForEachControl(const Groups& groups, const Visit& visit) {
    for (const auto& group : groups) {
        visit(group->Box);
        const auto visitAll = [&visit](const auto& cell) {
            for (UI::Control* control : cell->GetControls()) visit(*control);
        };
        for (const auto& row : group->Rows) {
            std::for_each(row->Labels.begin(), row->Labels.end(), visitAll);
            std::for_each(row->Cells.begin(), row->Cells.end(), visitAll);
        }
    }
}

}  // namespace

void LayOut(UI::Window& window, const Groups& groups, const BottomButtons& buttons) {
    const UI::LayoutMetrics& metrics = window.GetStyle().Metrics;
    const UI::Padding& padding = metrics.WindowPadding;
    const UI::Size plain{PlainSpacings.Width * metrics.Spacing, PlainSpacings.Height * metrics.Spacing};
    const UI::Size screen = window.GetRoom().value_or(plain);
    // What the groups may take of a window of that size.
    const auto getRoom = [&](int width, int height) {
        return UI::Size{width - padding.Left - padding.Right, height - metrics.OkButtonHeight - padding.Bottom};
    };
    const auto show = [&](const std::optional<UI::Rect>& view) {
        ForEachControl(groups, [&view](UI::Control& control) { control.SetView(view); });
    };
    if (window.IsScrolling()) show(std::nullopt);
    std::optional<Planner> planner;
    std::optional<int> bottom;
    for (const UI::Size& most :
         {UI::Size{std::min(screen.Width, plain.Width), std::min(screen.Height, plain.Height)}, screen}) {
        planner.emplace(window, groups, getRoom(most.Width, most.Height));
        bottom = planner->Fit();
        if (bottom) break;
    }
    int width = padding.Left + planner->GetWidth() + padding.Right;
    if (bottom) {
        window.EndScrolling();
    } else {
        const int buttonTop = getRoom(screen.Width, screen.Height).Height;
        planner.emplace(window, groups, getRoom(screen.Width - metrics.ScrollBarWidth, screen.Height));
        planner->Squeeze();
        const int height = planner->Place(padding.Top);
        width = padding.Left + planner->GetWidth() + padding.Right;
        const UI::Rect view{0, 0, width, buttonTop - metrics.Spacing};
        window.BeginScrolling(view, height);
        planner->Place(padding.Top - window.GetScrollPosition());
        show(view);
        bottom = buttonTop;
        width += metrics.ScrollBarWidth;
    }
    window.SetClientSize(width,
                         PlaceButtons(buttons, padding.Left, *bottom, width - padding.Right, metrics) + padding.Bottom);
}

void MoveGroups(const Groups& groups, int by) {
    ForEachControl(groups, [by](UI::Control& control) { control.SetPosition(control.GetX(), control.GetY() + by); });
}

}  // namespace Forms
