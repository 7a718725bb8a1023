#pragma once

#include "typeset/surface.h"

namespace numerello {

/// The pages that a line may run over.
class Sheets {
  public:
    virtual ~Sheets() = default;

    /// The page being written.
    virtual Surface& Current() = 0;

    /// Begins the next page, which is Current from then on; the caller places the pen. Throws
    /// Failure(Format) when no further page is there.
    virtual void Turn() = 0;
};

/// The fanned sheets of the worksheet. A turned sheet is a surface of its own: pen (0, 0), black,
/// the sheets' font.
class PaperSheets : public Sheets {
  public:
    /// How many there are at most.
    static constexpr int kCount = 10;

    /// Puts the arrow behind the line just drawn, whose end the playback holds by then.
    virtual void PlaceBlinker() = 0;
};

}  // namespace numerello
