#pragma once

#include <string_view>

#include "cli/fields.h"
#include "cli/json.h"

/// One handler for each request of the batch protocol. Each works a problem of its own, so that no
/// request sees anything of another, and adds its fields to an answer that holds the "id". They
/// throw BadRequest, before they add anything, for a request that cannot be used.
namespace numerello {

void SolveRequest(Fields& fields, Json& answer);
void ColumnsRequest(Fields& fields, Json& answer);
void TypeRequest(Fields& fields, Json& answer);
void TypesetRequest(Fields& fields, Json& answer);
void TopicsRequest(Fields& fields, Json& answer);
void GraphingRequest(Fields& fields, Json& answer);
void ExampleProblemRequest(Fields& fields, Json& answer);
void PracticeTestRequest(Fields& fields, Json& answer);

/// The whole answer to a request object, "id" and "ok" included; never throws for a bad request.
Json Answer(const Json& request, const Json& id);

/// The answer to a request that cannot be used.
Json Refusal(const Json& id, std::string_view error);

}  // namespace numerello
