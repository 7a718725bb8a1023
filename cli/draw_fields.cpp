#include "cli/draw_fields.h"

#include <limits>

#include "core/text.h"

namespace numerello {

namespace {

std::optional<FixedClock> ReadClock(Fields& fields) {
    const std::optional<int> moment = ReadMoment(fields);
    return moment ? std::optional<FixedClock>(*moment) : std::nullopt;
}

}  // namespace

/// Four digits "mmss"; each half from 00 to 59.
std::optional<int> ReadMoment(Fields& fields) {
    if (!fields.Has("clock")) {
        return std::nullopt;
    }
    const std::string text = fields.String("clock", "");
    int moment = 0;
    bool usable = text.size() == 4;
    for (std::size_t i = 0; usable && i < text.size(); ++i) {
        usable = IsDigit(text.substr(i, 1)) && (i % 2 == 1 || text[i] < '6');
        moment = moment * 10 + (text[i] - '0');
    }
    if (!usable) {
        throw BadRequest("\"clock\" must be four digits, minutes and seconds");
    }
    return moment;
}

RequestedDraws::RequestedDraws(Fields& fields)
    : fixed(ReadClock(fields)), draws(Now(), digits, direct) {
    if (fields.Has("seed")) {
        constexpr long kLargest = std::numeric_limits<long>::max();
        // The low 32 bits of the seed tell one stream from the others.
        draws.Seed(static_cast<std::uint32_t>(fields.Integer("seed", {-kLargest, kLargest}, 0)));
    }
}

const Clock& RequestedDraws::Now() const {
    if (fixed) {
        return *fixed;
    }
    return present;
}

}  // namespace numerello
