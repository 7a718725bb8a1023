#pragma once

#include <string>
#include <string_view>

#include "core/bounds.h"
#include "core/step_log.h"

namespace numerello {

/// One digit of a written multiplication.
struct ProductCell {
    /// What the cell before this one was the end of.
    enum class Marker { None, PartialProduct, LastPartialProduct, OnlyPartialProduct };

    std::string Digit = " ";  ///< a blank where nothing is written
    Marker marker = Marker::None;
    std::string Carry;  ///< raised when the digit was written, empty for none
};

/// All digits of a written multiplication, in the order in which they are written, from index 0.
using ProductCells = BoundedArray<ProductCell, 200>;

/// Works the product of two texts of digits. The reason of cell k goes to StepNote[3 + k].
/// Failure(Format) when the working, its reasons or the 11 partial products do not suffice.
ProductCells WorkProduct(std::string_view Top, std::string_view Bottom, StepLog& log);

}  // namespace numerello
