#pragma once

#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "cli/json.h"

namespace numerello {

/// A request that cannot be used; what() tells the sender why.
class BadRequest : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What a number has to lie in, its ends included.
template <class T>
struct Range {
    T least;
    T most;
};

/// The fields of one object, read by name and type. Every getter throws BadRequest for a value of
/// a wrong type or out of its range, and remembers the name; RejectOthers refuses the rest.
class Fields {
  public:
    /// The object must outlive its Fields.
    explicit Fields(const Json& object);

    bool Has(std::string_view name);
    std::string String(std::string_view name, std::string_view otherwise);
    bool Bool(std::string_view name, bool otherwise);
    long Integer(std::string_view name, Range<long> range, long otherwise);
    double Number(std::string_view name, Range<double> range, double otherwise);
    std::vector<std::string> Strings(std::string_view name, std::optional<std::size_t> most);
    std::vector<long> Integers(std::string_view name, std::size_t most, Range<long> range);

    /// The entries of an array of objects.
    std::vector<const Json*> Objects(std::string_view name, std::size_t most);

    /// The value of an object field, null when missing.
    const Json* Object(std::string_view name);

    /// Call when every known field has been asked for.
    void RejectOthers() const;

  private:
    const Json* Find(std::string_view name);
    const Json* FindArray(std::string_view name, std::optional<std::size_t> most);

    const Json& object;
    std::set<std::string, std::less<>> known;
};

}  // namespace numerello
