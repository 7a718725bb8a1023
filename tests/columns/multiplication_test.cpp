#include "operands.h"

namespace numerello {
namespace {

constexpr double kLeft = 150;
constexpr double kTopRow = 350;
constexpr double kBottomRow = 367.2;
constexpr double kFirstRow = 389.4;
constexpr double kRowStep = 18;
constexpr double kFirstCarries = 334.4;
constexpr double kCarryStep = 12;
constexpr std::size_t kMostCells = 100;

/// A product as it has to be written, found by division with remainder alone: the digits of each
/// row, the reasons and the carries, in order.
struct Product {
    Product(const std::string& topText, const std::string& bottomText)
        : topPlaces(static_cast<int>(topText.size())),
          rows(static_cast<int>(bottomText.size())),
          top(ValueOf(topText)),
          bottom(ValueOf(bottomText)) {
        for (int row = 0; row < rows; ++row) {
            MultiplyBy(row);
        }
        if (rows > 1) {
            AddRows();
        }
    }

    void MultiplyBy(int row) {
        const Whole b = DigitOf(bottom, row);
        for (int i = 0; i < row; ++i) {
            Add(row, 0,
                row == 1 ? "Insert a 0 to account for the place value of the next number being "
                           "multiplied by."
                         : "Insert " + Say(row) +
                               " 0's to account for the place value of the next number being "
                               "multiplied by.");
        }
        for (int place = 0; place < topPlaces; ++place) {
            const Whole t = DigitOf(top, place);
            const Whole carried = b * (top % PowerOfTen(place)) / PowerOfTen(place);
            const Whole p = t * b + carried;
            std::string reason = "Multiply " + Say(t) + " by " + Say(b) + " (" + Say(t * b) + ")";
            reason += carried == 0
                          ? "."
                          : " and add the remainder (" + Say(carried) + ") to get " + Say(p) + ".";
            carries[{row, place + 1}] = p / 10;
            Add(row, p % 10, reason + Carrying(p));
        }
        BringDown(row, b * top / PowerOfTen(topPlaces));
    }

    void AddRows() {
        const int columns = static_cast<int>(digits[rows - 1].size());
        Whole carried = 0;
        for (int column = 0; column < columns; ++column) {
            Whole total = 0;
            Whole behind = 0;  // what all rows amount to right of this column
            for (int row = 0; row < rows; ++row) {
                const Whole partial = DigitOf(bottom, row) * top * PowerOfTen(row);
                total += DigitOf(partial, column);
                behind += partial % PowerOfTen(column);
            }
            carried = behind / PowerOfTen(column);
            total += carried;
            std::string reason =
                carried == 0
                    ? "Add all the numbers in the column to get " + Say(total) + "."
                    : "Add all the numbers in the column, including the remainder from the "
                      "previous column (" +
                          Say(carried) + ") to get " + Say(total) + ".";
            Add(rows, total % 10, reason + Carrying(total));
            carried = total / 10;
        }
        BringDown(rows, carried);
    }

    static std::string Carrying(Whole value) {
        return value < 10 ? ""
                          : "  Since " + Say(value) +
                                " has more than one digit, carry the number in the tens digit (" +
                                Say(value / 10) + ") to next column.";
    }

    void BringDown(int row, Whole carried) {
        if (carried > 0) {
            Add(row, carried, "Bring down the remainder of " + Say(carried) + ".");
        }
    }

    void Add(int row, Whole digit, const std::string& reason) {
        digits[row].insert(0, Say(digit));
        reasons.push_back(reason);
    }

    int topPlaces;
    int rows;
    Whole top;
    Whole bottom;
    std::map<int, std::string> digits;  ///< by row, that of the sums last
    std::vector<std::string> reasons;
    std::map<std::pair<int, int>, Whole> carries;  ///< by row and the place that they go to
};

/// The Y of a partial product's row, and of that of the sums behind the last.
double RowY(const Product& product, int row) {
    return kFirstRow + kRowStep * row + (row == product.rows ? 4 : 0);
}

void ExpectFinished(const Frame& frame, const Product& product) {
    const double end = kLeft + 20 * (product.topPlaces + 1);
    for (const auto& [row, digits] : product.digits) {
        const auto drawn = RowAt(frame, RowY(product, row));
        const bool last = product.rows > 1 && row == product.rows - 1;
        EXPECT_EQ(Spelt(drawn), (last ? "+" : "") + digits) << "row " << row;
        EXPECT_EQ(drawn.rbegin()->first, std::round((end - 20) * 1000)) << "row " << row;
    }
    const auto sums = product.digits.rbegin();
    EXPECT_EQ(ValueOf(sums->second), product.top * product.bottom);
    EXPECT_EQ(frame.endY, RowY(product, sums->first));
    for (int row = 0; row < product.rows; ++row) {
        const auto carries = RowAt(frame, kFirstCarries - kCarryStep * row);
        std::size_t expected = 0;
        for (int place = 1; place <= product.topPlaces; ++place) {
            const Whole carry = product.carries.at({row, place});
            EXPECT_EQ(TextAt(carries, end - 20 * (place + 1) + 1), carry > 0 ? Say(carry) : "");
            expected += carry > 0 ? 1 : 0;
        }
        EXPECT_EQ(carries.size(), expected) << "carries of row " << row;
    }
}

bool Same(const Mark& left, const Mark& right) {
    if (left.index() != right.index()) {
        return false;
    }
    if (const auto* const text = std::get_if<TextMark>(&left)) {
        const auto& other = std::get<TextMark>(right);
        return text->text == other.text && text->x == other.x && text->y == other.y &&
               text->font.size == other.font.size && text->color == other.color;
    }
    const auto& stroke = std::get<StrokeMark>(left);
    const auto& other = std::get<StrokeMark>(right);
    return stroke.x1 == other.x1 && stroke.y1 == other.y1 && stroke.x2 == other.x2 &&
           stroke.y2 == other.y2 && stroke.width == other.width;
}

/// Each drawing has one digit more than the one before, and nothing else but what belongs to it: a
/// carry, and above the sums "+" and their rule.
void ExpectOneCellMore(const Film& film) {
    for (std::size_t i = 1; i < film.frames.size(); ++i) {
        const std::vector<Mark>& before = film.frames[i - 1].marks;
        const std::vector<Mark>& now = film.frames[i].marks;
        ASSERT_GT(now.size(), before.size());
        EXPECT_TRUE(std::equal(before.begin(), before.end(), now.begin(), Same));
        std::size_t digits = 0;
        for (std::size_t mark = before.size(); mark < now.size(); ++mark) {
            const auto* const text = std::get_if<TextMark>(&now[mark]);
            digits += text != nullptr && text->font.size == 12 && text->text != "+" ? 1 : 0;
        }
        EXPECT_EQ(digits, 1U);
    }
}

/// All drawings of a product that fits into 100 cells.
void ExpectMultiplication(std::string topText, std::string bottomText) {
    SCOPED_TRACE(topText + " x " + bottomText);
    const Film film = Played(kMultiplication, topText, bottomText);
    EXPECT_TRUE(film.learner.messages.empty());
    if (topText.size() < bottomText.size()) {
        std::swap(topText, bottomText);
    }
    const Product product(topText, bottomText);
    std::vector<std::string> notes{"Multiply " + topText + " by " + bottomText + "."};
    notes.insert(notes.end(), product.reasons.begin(), product.reasons.end());
    EXPECT_EQ(film.Notes(), notes);
    ExpectFinished(film.Last(), product);
    ExpectOneCellMore(film);
    for (const Frame& frame : {film.frames.front(), film.Last()}) {
        EXPECT_EQ(SpeltAt(frame, kTopRow), topText);
        EXPECT_EQ(SpeltAt(frame, kBottomRow), "x" + bottomText);
    }
    for (const Frame& frame : film.frames) {
        EXPECT_EQ(frame.endX, kLeft + 20 * (product.topPlaces + 1));
    }
}

TEST(Multiplication, OfRandomNumbersIsRightInEveryCell) {
    // 8 by 7 digits is the most that always fits.
    Operands operands(202);
    for (int i = 0; i < kRandomProblems; ++i) {
        ExpectMultiplication(operands.Draw(8), operands.Draw(7));
        if (HasFailure()) {
            return;
        }
    }
}

TEST(Multiplication, OfLongNumbersThatJustFit) {
    ExpectMultiplication("9999999999", "999999");
    ExpectMultiplication("9999999999", "9");
    ExpectMultiplication("1000000000", "100000");
    ExpectMultiplication("0", "0");
    ExpectMultiplication("305", "206");
    ExpectMultiplication("007", "12");
}

TEST(Multiplication, MovesTheShorterNumberDownWithoutAMessage) {
    ExpectMultiplication("3", "12");
    // By length, not by value.
    ExpectMultiplication("12", "34");
    const Film film = Played(kMultiplication, "3", "12");
    EXPECT_EQ(film.Notes()[0], "Multiply 12 by 3.");
    EXPECT_EQ(film.frames.size(), 3U);
    EXPECT_EQ(film.problem.columns.ColumnTop, "3");
}

TEST(Multiplication, ByOneDigitHasNeitherZerosNorSums) {
    for (const std::string& mark : Played(kMultiplication, "12", "3").Last().Texts()) {
        EXPECT_NE(mark.front(), '+');
        EXPECT_TRUE(mark.front() != '<' || mark == "<150,384.4 207,384.4 w2>") << mark;
    }
}

TEST(Multiplication, TheThirdDigitInsertsTwoZerosWithTheSameReason) {
    const std::vector<std::string> notes = Played(kMultiplication, "111", "111").Notes();
    // The opening, 3 digits, a zero and 3 digits: then the two zeros.
    const std::string reason =
        "Insert 2 0's to account for the place value of the next number being multiplied by.";
    EXPECT_EQ(notes[8], reason);
    EXPECT_EQ(notes[9], reason);
    EXPECT_EQ(std::count(notes.begin(), notes.end(), reason), 2);
}

TEST(Multiplication, AZeroBelowWritesAFullRowOfZeros) {
    const Frame last = Played(kMultiplication, "123", "405").Last();
    EXPECT_EQ(SpeltAt(last, kFirstRow + kRowStep), "0000");
}

TEST(Multiplication, AllAtOnceIsTheLastDrawingAndLeavesTheInstruction) {
    Operands operands(2021);
    for (int i = 0; i < 200; ++i) {
        const std::string top = operands.Draw(8);
        const std::string bottom = operands.Draw(7);
        Film film(kMultiplication, top, bottom, false);
        film.Play();
        ASSERT_EQ(film.frames.size(), 1U);
        EXPECT_EQ(film.Last().Texts(), Played(kMultiplication, top, bottom).Last().Texts());
        EXPECT_EQ(film.Last().note, "Enter numbers into both boxes.");
        EXPECT_TRUE(film.Last().finished);
    }
}

/// How many cells the whole working has.
std::size_t Cells(const std::string& top, const std::string& bottom) {
    const Product product(top, bottom);
    return product.reasons.size();
}

TEST(Multiplication, StopsAfterAHundredCellsAndNeverFinishes) {
    ASSERT_GT(Cells("99999999", "99999999"), kMostCells);
    Film film(kMultiplication, "99999999", "99999999");
    film.Play(120);
    ASSERT_EQ(film.frames.size(), 120U);
    for (const Frame& frame : film.frames) {
        EXPECT_FALSE(frame.finished);
    }
    for (std::size_t i = kMostCells + 1; i < film.frames.size(); ++i) {
        EXPECT_EQ(film.frames[i].Texts(), film.frames[kMostCells].Texts());
    }
    EXPECT_NE(film.frames[kMostCells].Texts(), film.frames[kMostCells - 1].Texts());

    Film atOnce(kMultiplication, "99999999", "99999999", false);
    atOnce.Play();
    ASSERT_EQ(atOnce.frames.size(), 1U);
    EXPECT_TRUE(atOnce.Last().finished);
    EXPECT_EQ(atOnce.Last().Texts(), film.frames[kMostCells].Texts());
}

TEST(Multiplication, OfTenByTenDigitsFindsRoomForAllReasons) {
    Film film(kMultiplication, "9999999999", "9999999999");
    film.Play(150);
    EXPECT_EQ(film.frames.size(), 150U);
    EXPECT_EQ(film.failure, std::nullopt);
    // 10 + 1 cells for each row of nines and the zeros before them, then 20 sums.
    EXPECT_EQ(film.problem.log.StepNote[3 + 11 * 10 + 45 + 19].substr(0, 3), "Add");
}

TEST(Multiplication, OfExactlyAHundredCellsFinishes) {
    // 9 by 7 digits: 7 rows of 9 with 0 + 1 + ... + 6 zeros are 84 cells, the last row has 15
    // columns of sums; one carry to bring down makes 100.
    const std::string top = "211111111";
    const std::string bottom = "1111115";
    ASSERT_EQ(Cells(top, bottom), kMostCells);
    ExpectMultiplication(top, bottom);
}

}  // namespace
}  // namespace numerello
