#include "help/page_text.h"

#include "core/text.h"

namespace numerello {

namespace {

/// The value of an attribute in a tag.
std::string_view Attribute(std::string_view tag, std::string_view name) {
    const std::string begins = Text(" ", name, "=\"");
    const std::size_t at = tag.find(begins);
    if (at == std::string_view::npos) {
        return {};
    }
    tag.remove_prefix(at + begins.size());
    return tag.substr(0, tag.find('"'));
}

/// Calls for each tag, and for each text between two of them.
template <class TakeTag, class TakeText>
void Walk(std::string_view html, TakeTag takeTag, TakeText takeText) {
    while (!html.empty()) {
        const std::size_t begin = html.find('<');
        takeText(html.substr(0, begin));
        if (begin == std::string_view::npos) {
            return;
        }
        const std::size_t end = html.find('>', begin);
        takeTag(html.substr(begin, end - begin));
        html.remove_prefix(end == std::string_view::npos ? html.size() : end + 1);
    }
}

std::string Unescaped(std::string_view text) {
    std::string plain = Replace(Replace(Replace(text, "&lt;", "<"), "&gt;", ">"), "&quot;", "\"");
    plain = Replace(Replace(plain, "&rsaquo;", "-"), "&nbsp;", " ");
    return Replace(plain, "&amp;", "&");
}

/// One blank between words.
std::string Tidied(std::string_view text) {
    std::string tidy;
    for (const char c : text) {
        const bool blank = c == ' ' || c == '\n' || c == '\t';
        if (!blank) {
            tidy += c;
        } else if (!tidy.empty() && tidy.back() != ' ') {
            tidy += ' ';
        }
    }
    return std::string(Trimmed(tidy));
}

}  // namespace

std::string PlainText(std::string_view html) {
    std::string text;
    Walk(
        html,
        [&text](std::string_view tag) {
            const bool inLine =
                tag.starts_with("<b") || tag.starts_with("</b") || tag.starts_with("<i>") ||
                tag.starts_with("<code") || tag.starts_with("</code") || tag.starts_with("<a") ||
                tag.starts_with("</a") || tag.starts_with("<span") || tag.starts_with("</span");
            text += inLine ? "" : " ";
            text += Attribute(tag, "alt");
        },
        [&text](std::string_view piece) { text += piece; });
    return Tidied(Unescaped(text));
}

std::string TitleOf(std::string_view html) {
    const std::size_t begin = html.find("<h1>");
    const std::size_t end = html.find("</h1>");
    return begin == std::string_view::npos || end == std::string_view::npos
               ? ""
               : PlainText(html.substr(begin, end - begin));
}

std::vector<std::string> LinksOf(std::string_view html) {
    std::vector<std::string> links;
    Walk(
        html,
        [&links](std::string_view tag) {
            if (const std::string_view link = Attribute(tag, "href"); !link.empty()) {
                links.emplace_back(link);
            }
        },
        [](std::string_view) {});
    return links;
}

}  // namespace numerello
