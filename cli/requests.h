#pragma once

#include <string_view>

#include "cli/fields.h"
#include "cli/json.h"

/// One handler for each request of the batch protocol. Each works a problem of its own, so that no
/// request sees anything of another. They throw BadRequest for a request that cannot be used.
namespace numerello {

Json SolveRequest(Fields& fields);
Json TypeRequest(Fields& fields);
Json TypesetRequest(Fields& fields);
Json TopicsRequest(Fields& fields);

/// The whole answer to a request object, "id" and "ok" included; never throws for a bad request.
Json Answer(const Json& request, const Json& id);

/// The answer to a request that cannot be used.
Json Refusal(const Json& id, std::string_view error);

}  // namespace numerello
