#include "editor/color_descriptor_windows.h"

#include "editor/raw_rows.h"

using namespace VNT;

EdidColorPointDescriptorWindow::EdidColorPointDescriptorWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidColorPointDescriptorWindow", L"Color Point") {
    AddPoint(L"White point #1", 0);
    AddPoint(L"White point #2", 1);
}

void EdidColorPointDescriptorWindow::AddPoint(const std::wstring& caption, std::size_t index) {
    EdidColorPoint& point = fields.points[index];
    const Item::PointNames& names = Item::Names[index];
    auto group = Group(caption).Aligned();
    group.Row(L"Index #:").Number(Forms::TBoundField{point.index, names.index}, L"000");
    const auto addCoordinate = [&](const wchar_t* label, Decimal& value, int& raw, const char* name) {
        AddRawRow(group, Forms::CoordinateRow, fields.useRaw, label, Forms::TBoundField{value, name},
                  Forms::TBoundField{raw, name});
    };
    addCoordinate(L"White x:", point.x, point.rawX, names.rawX);
    addCoordinate(L"White y:", point.y, point.rawY, names.rawY);
    group.Row(L"Gamma:").Number(Forms::TBoundField{point.gamma, names.gamma}, L"0.00");
}

EdidColorManagementDescriptorWindow::EdidColorManagementDescriptorWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidColorManagementDescriptorWindow", L"Color Management") {
    const auto addColor = [this](const wchar_t* caption, auto a3, auto a2) {
        auto group = Group(caption);
        group.Row(L"a\u2083:").Number(a3, L"-000.00");
        group.Row(L"a\u2082:").Number(a2, L"-000.00");
    };
    Group(L"Version").Number(Field<&Fields::version>, L"000");
    addColor(L"Red", Field<&Fields::redA3>, Field<&Fields::redA2>);
    addColor(L"Green", Field<&Fields::greenA3>, Field<&Fields::greenA2>);
    addColor(L"Blue", Field<&Fields::blueA3>, Field<&Fields::blueA2>);
}
