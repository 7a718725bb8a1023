#include "catalogue/examples/families.h"
#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

constexpr std::string_view kSimple = "Ax^-B^+Cx^-D^";
constexpr std::string_view kComplex = "#Ax^-B^/C#+Dx^-E^-Fx^-G^";

}  // namespace

std::string create_example(std::string_view Template, ExampleDraws& draws) {
    std::string text(Template);
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const std::string_view replaced(&letter, 1);
        if (text.find(letter) != std::string::npos) {
            text = Replace(text, replaced, WholeText(draws.RandInt2to9()));
        }
    }
    return text;
}

/// The filter sets the marks itself and drops those of the template.
Example TemplateExample(const ExampleRequest& request, ExampleDraws& draws) {
    Example example;
    example.printed = create_example(request.IsComplex() ? kComplex : kSimple, draws);
    example.keys = example.printed;
    return example;
}

}  // namespace numerello
