#include "columns/product_cells.h"

#include <utility>
#include <vector>

#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr int kFirstReason = 3;
constexpr int kTopRow = 10;

int Places(std::string_view digits) {
    return static_cast<int>(digits.size());
}

/// Places are counted from the right, from 0.
int DigitAtPlace(std::string_view digits, int place) {
    return digits[digits.size() - 1 - static_cast<std::size_t>(place)] - '0';
}

std::string CarryOn(int value) {
    const std::string text = WholeText(value);
    return Text("  Since ", text, " has more than one digit, carry the number in the tens digit (",
                text.substr(0, 1), ") to next column.");
}

struct ProductTables {
    ProductCells cells;
    /// The digits of each partial product, from the right.
    BoundedArray<std::vector<int>, kTopRow> PartialRows;
};

/// Writes a multiplication down, digit by digit.
class ProductWriter {
  public:
    ProductWriter(std::string_view Top, std::string_view Bottom, StepLog& log)
        : top(Top), bottom(Bottom), log(log) {}

    ProductCells Written();

  private:
    void MultiplyBy(int row);
    void InsertZeros(int row);
    void MultiplyDigit(int row, int t, int b);
    void AddColumns();
    int ColumnTotal(std::size_t column) const;
    void Write(int digit, std::string reason);
    void BringDown();

    std::string_view top;
    std::string_view bottom;
    StepLog& log;
    ProductTables tables;
    int next = 0;  ///< the cell that is written next
    int carry = 0;
};

ProductCells ProductWriter::Written() {
    const int rows = Places(bottom);
    for (int row = 0; row < rows; ++row) {
        MultiplyBy(row);
        const bool last = row == rows - 1;
        tables.cells[next].marker = !last       ? ProductCell::Marker::PartialProduct
                                    : rows == 1 ? ProductCell::Marker::OnlyPartialProduct
                                                : ProductCell::Marker::LastPartialProduct;
    }
    if (rows > 1) {
        AddColumns();
    }
    return std::move(tables.cells);
}

void ProductWriter::MultiplyBy(int row) {
    InsertZeros(row);
    for (int place = 0; place < Places(top); ++place) {
        MultiplyDigit(row, DigitAtPlace(top, place), DigitAtPlace(bottom, row));
    }
    if (carry > 0) {
        tables.PartialRows[row].push_back(carry);
        BringDown();
    }
}

/// Each zero is a cell of its own with the same reason.
void ProductWriter::InsertZeros(int row) {
    for (int i = 0; i < row; ++i) {
        tables.PartialRows[row].push_back(0);
        Write(0, row == 1 ? std::string("Insert a 0 to account for the place value of the next "
                                        "number being multiplied by.")
                          : Text("Insert ", WholeText(row),
                                 " 0's to account for the place value of the next number being "
                                 "multiplied by."));
    }
}

void ProductWriter::MultiplyDigit(int row, int t, int b) {
    const int product = t * b;
    const int p = product + carry;
    std::string reason =
        carry == 0
            ? Text("Multiply ", WholeText(t), " by ", WholeText(b), " (", WholeText(product), ").")
            : Text("Multiply ", WholeText(t), " by ", WholeText(b), " (", WholeText(product),
                   ") and add the remainder (", WholeText(carry), ") to get ", WholeText(p), ".");
    carry = p / 10;
    if (carry > 0) {
        reason += CarryOn(p);
        tables.cells[next].Carry = WholeText(carry);
    }
    tables.PartialRows[row].push_back(p % 10);
    Write(p % 10, std::move(reason));
}

void ProductWriter::AddColumns() {
    // No partial product is longer than the last one.
    const std::size_t columns = tables.PartialRows[Places(bottom) - 1].size();
    for (std::size_t column = 0; column < columns; ++column) {
        const int total = ColumnTotal(column) + carry;
        std::string reason =
            carry == 0 ? Text("Add all the numbers in the column to get ", WholeText(total), ".")
                       : Text(
                             "Add all the numbers in the column, including the remainder from the "
                             "previous column (",
                             WholeText(carry), ") to get ", WholeText(total), ".");
        carry = total / 10;
        if (carry > 0) {
            reason += CarryOn(total);
        }
        Write(total % 10, std::move(reason));
    }
    if (carry > 0) {
        BringDown();
    }
}

int ProductWriter::ColumnTotal(std::size_t column) const {
    int total = 0;
    for (int row = 0; row <= kTopRow; ++row) {
        const std::vector<int>& digits = tables.PartialRows[row];
        total += column < digits.size() ? digits[column] : 0;
    }
    return total;
}

void ProductWriter::Write(int digit, std::string reason) {
    tables.cells[next].Digit = WholeText(digit);
    log.StepNote[kFirstReason + next] = std::move(reason);
    ++next;
}

void ProductWriter::BringDown() {
    Write(carry, Text("Bring down the remainder of ", WholeText(carry), "."));
    carry = 0;
}

}  // namespace

ProductCells WorkProduct(std::string_view Top, std::string_view Bottom, StepLog& log) {
    return ProductWriter(Top, Bottom, log).Written();
}

}  // namespace numerello
