#pragma once

#include <cstddef>
#include <deque>
#include <utility>

namespace numerello {

/// Throws Failure(Format) unless 0 <= index <= top.
void CheckIndex(int index, int top);

/// An array with indexes 0 to Top whose storage grows with use: a cell that was never written
/// reads as the neutral value. An index outside the bounds throws Failure(Format). References stay
/// valid while it grows, so that a cell may be copied to a higher one. What is only read is read by
/// Get(), which never grows it.
template <class T, int Top>
class BoundedArray {
  public:
    explicit BoundedArray(T neutral = T()) : neutral(std::move(neutral)) {}

    T& operator[](int index) {
        CheckIndex(index, Top);
        if (index >= static_cast<int>(cells.size())) {
            cells.resize(static_cast<std::size_t>(index) + 1, neutral);
        }
        return cells[static_cast<std::size_t>(index)];
    }

    const T& operator[](int index) const { return Get(index); }

    const T& Get(int index) const {
        CheckIndex(index, Top);
        return index < static_cast<int>(cells.size()) ? cells[static_cast<std::size_t>(index)]
                                                      : neutral;
    }

    /// Sets every cell to the neutral value.
    void Clear() { cells.clear(); }

    /// Sets the cells first to last to the neutral value.
    void Clear(int first, int last) {
        CheckIndex(first, Top);
        CheckIndex(last, Top);
        for (int i = first; i <= last && i < static_cast<int>(cells.size()); ++i) {
            cells[static_cast<std::size_t>(i)] = neutral;
        }
    }

  private:
    T neutral;
    std::deque<T> cells;
};

}  // namespace numerello
