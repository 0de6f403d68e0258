#include <algorithm>
#include <numeric>

#include "editor/form_rows.h"

namespace Forms {

namespace {

constexpr int MostPerColumn = 24;    // of a grid
constexpr int WideForm = 3;          // form widths of a form with a list
constexpr int MostSpacings = 80;     // of a form's height, as a screen of 1080 lines shows it at 150 %
constexpr int WidestSpacings = 158;  // of its width, as one of 1920 pixels does

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
    GroupLayout(Group& group, const UI::StyleTable& style)
        : group(group), metrics(style.Metrics), columnGap(style.UncheckedRadio.Gap) {
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
            width = CountColumns(static_cast<int>(row.Cells.size())) * GetStep(row);
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

    // The columns that the cells need, and what each takes.
    static int CountColumns(int cells) { return (cells + MostPerColumn - 1) / MostPerColumn; }
    int GetStep(const Row& row) const { return GetLargest(row.Cells).Width + metrics.SmallSpacing; }

    int PlaceColumns(const Row& row, int x, int y, int width) const {
        std::vector<Cell*> cells;
        for (const auto& cell : row.Cells) {
            if (cell->IsVisible) cells.push_back(cell.get());
        }
        const int count = static_cast<int>(cells.size());
        const int height = GetLargest(row.Cells).Height;
        const int step = GetStep(row);
        const int columnCount = std::max(CountColumns(count), row.Kind == RowKind::Columns ? width / step : 1);
        const int lines = row.Kind == RowKind::Columns ? (count + columnCount - 1) / columnCount : MostPerColumn;
        for (int i = 0; i < count; ++i) {
            const int top = y + i % lines * (height + columnGap);
            cells[static_cast<std::size_t>(i)]->Place(x + i / lines * step, top, step, height);
        }
        return y + std::min(lines, count) * (height + columnGap) - columnGap;
    }

    Group& group;
    const UI::LayoutMetrics& metrics;
    int columnGap;
    int labelWidth = 0;
    std::vector<int> columns;
};

// A whole number of form widths, wide enough for all groups.
int GetGroupWidth(const std::vector<GroupLayout>& layouts, bool isWide, const UI::LayoutMetrics& metrics) {
    int least = 0;
    for (const GroupLayout& layout : layouts) least = std::max(least, layout.GetLeastWidth());
    int width = metrics.FormWidth;
    if (isWide) width = WideForm * metrics.FormWidth + (WideForm - 1) * metrics.Spacing;
    while (width < least) width += metrics.Spacing + metrics.FormWidth;
    return width;
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

// The columns that the groups need so that none is higher than `most`, as far as single groups allow it.
std::vector<int> Divide(const std::vector<int>& heights, int most) {
    std::vector<int> columns(heights.size());
    for (int count = 2; count <= static_cast<int>(heights.size()) && GetTallest(heights, columns) > most; ++count)
        columns = DivideInto(count, heights);
    return columns;
}

// Each column as wide as one of its own would be, or, where that is more than a screen shows, as it needs to be.
std::vector<int> GetColumnWidths(const std::vector<GroupLayout>& layouts, const std::vector<int>& columns, int width,
                                 const UI::LayoutMetrics& metrics) {
    std::vector<int> widths(static_cast<std::size_t>(columns.back()) + 1, width);
    const int gaps = (columns.back() + 2) * metrics.Spacing;
    if (std::accumulate(widths.begin(), widths.end(), gaps) <= WidestSpacings * metrics.Spacing) return widths;
    std::fill(widths.begin(), widths.end(), metrics.FormWidth);
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        int& column = widths[static_cast<std::size_t>(columns[i])];
        column = std::max(column, layouts[i].GetLeastWidth());
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

void LayOut(UI::Window& window, const std::vector<std::unique_ptr<Group>>& groups, const BottomButtons& buttons) {
    const UI::LayoutMetrics& metrics = window.GetStyle().Metrics;
    const UI::Padding& padding = metrics.WindowPadding;
    std::vector<GroupLayout> layouts;
    bool isWide = false;
    for (const auto& group : groups) {
        if (!group->IsVisible) continue;
        layouts.emplace_back(*group, window.GetStyle());
        isWide = isWide || HasWideCell(*group);
    }
    const int width = GetGroupWidth(layouts, isWide, metrics);
    std::vector<int> heights;
    int y = padding.Top;
    for (const GroupLayout& layout : layouts) {
        const int top = y;
        y = layout.Place(padding.Left, top, width) + metrics.Spacing;
        heights.push_back(y - top);
    }
    int right = padding.Left + width;
    const int around = padding.Top + metrics.OkButtonHeight + padding.Bottom;
    const int most = MostSpacings * metrics.Spacing - around;
    if (y - padding.Top > most && !layouts.empty()) {
        // Where they are too many for the screen they go on in a further column, as the rows of a chooser do.
        const std::vector<int> columns = Divide(heights, most);
        const std::vector<int> widths = GetColumnWidths(layouts, columns, width, metrics);
        std::vector<int> bottoms(widths.size(), padding.Top);
        for (std::size_t i = 0; i < layouts.size(); ++i) {
            const auto column = static_cast<std::size_t>(columns[i]);
            const auto before = widths.begin() + columns[i];
            const int x = std::accumulate(widths.begin(), before, padding.Left + columns[i] * metrics.Spacing);
            bottoms[column] = layouts[i].Place(x, bottoms[column], widths[column]) + metrics.Spacing;
            right = x + widths[column];
        }
        y = *std::max_element(bottoms.begin(), bottoms.end());
    }
    window.SetClientSize(right + padding.Right,
                         PlaceButtons(buttons, padding.Left, y, right, metrics) + padding.Bottom);
}

}  // namespace Forms
