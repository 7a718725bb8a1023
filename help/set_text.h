#pragma once

#include <string>
#include <string_view>

/// Texts as the pages hold them: HTML, in which a piece of mathematics is a picture named by its
/// own text. The window draws it when the page is shown, at the size and the sharpness of then.
namespace numerello {

/// The ink that a piece of mathematics is drawn with: that of the page around it, or those of the
/// paper.
enum class Ink { Page, Black, Blue };

/// The text with the characters that mean something in HTML written out.
std::string Escaped(std::string_view text);

/// A whole line of math text as one picture, which is read aloud in words.
std::string MathPicture(std::string_view line, Ink ink);

/// A sentence as text; its fractions, roots and exponents, with what stands close to them, as
/// pictures. What stands between "[" and "]" is emphasised.
std::string MathSentence(std::string_view sentence, Ink ink);

/// A line as a picture, or where it has words, which may be broken at the blanks between them, as a
/// sentence.
std::string MathLine(std::string_view line, Ink ink);

/// HTML with its <m>...</m> replaced by pictures in the page's ink. Throws HelpError for one that
/// is not closed.
std::string WithMath(std::string_view html);

}  // namespace numerello
