#include "worksheet/sheet_stack.h"

#include <algorithm>

#include "core/bounds.h"
#include "core/number.h"
#include "core/text.h"
#include "typeset/variants.h"

namespace numerello {

namespace {

constexpr double kRuling = 46;
constexpr double kFanStep = 25;

void Unfold(Sheet& sheet) {
    sheet.width = SheetStack::kWidth;
    sheet.height = SheetStack::kHeight;
    sheet.visible = true;
}

}  // namespace

SheetStack::SheetStack(const TextMetrics& metrics) : metrics(metrics) {
    sheets.reserve(kCount);
    for (int i = 0; i < kCount; ++i) {
        sheets.push_back(
            Sheet{.surface = EmptySurface(), .newSheets = 0, .title = {}, .lines = {}});
    }
    Unfold(sheets.front());
}

Sheet& SheetStack::operator[](int index) {
    CheckIndex(index, kCount - 1);
    return sheets[static_cast<std::size_t>(index)];
}

const Sheet& SheetStack::operator[](int index) const {
    CheckIndex(index, kCount - 1);
    return sheets[static_cast<std::size_t>(index)];
}

void SheetStack::Entitle(std::string_view topicTitle) {
    sheets.front().title = topicTitle;
    for (int i = 1; i < kCount; ++i) {
        (*this)[i].title = Text(topicTitle, " (Page ", WholeText(i + 1), ")");
    }
}

void SheetStack::Turn(int page) {
    Sheet& last = (*this)[page];
    Sheet& next = (*this)[page + 1];
    last.arrowVisible = false;

    Replace(next);
    next.left = last.left + kFanStep;
    next.top = last.top + kFanStep;
    Unfold(next);
    std::erase(order, page + 1);
    order.push_back(page + 1);
}

void SheetStack::Lengthen(int index, double bottom) {
    Sheet& sheet = (*this)[index];
    while (sheet.height < bottom) {
        sheet.height += kRuling;
    }
}

void SheetStack::Raise(int index) {
    if (std::erase(order, index) > 0) {
        order.push_back(index);
    }
}

void SheetStack::SendToBack(int index) {
    if (std::erase(order, index) > 0) {
        order.insert(order.begin(), index);
    }
}

void SheetStack::Blank(int last) {
    for (int i = 0; i <= last; ++i) {
        Sheet& sheet = (*this)[i];
        Replace(sheet);
        sheet.height = std::min<double>(sheet.height, kHeight);
        sheet.visible = i == 0;
        sheet.arrowVisible = false;
    }
    std::erase_if(order, [this](int index) { return !(*this)[index].visible; });
}

void SheetStack::MoveTo(double left) {
    const double distance = left - sheets.front().left;
    for (const int index : order) {
        (*this)[index].left += distance;
    }
}

void SheetStack::Replace(Sheet& sheet) const {
    sheet.surface = EmptySurface();
    sheet.lines.clear();
    ++sheet.newSheets;
}

Surface SheetStack::EmptySurface() const {
    return {metrics, SheetFont()};
}

}  // namespace numerello
