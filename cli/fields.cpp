#include "cli/fields.h"

#include "core/number.h"
#include "core/text.h"

namespace numerello {

namespace {

[[noreturn]] void WrongType(std::string_view name, std::string_view wanted) {
    throw BadRequest(Text("\"", name, "\" must be ", wanted));
}

void CheckRange(std::string_view name, double value, Range<double> range) {
    if (!(value >= range.least && value <= range.most)) {
        throw BadRequest(Text("\"", name, "\" must be from ", NumberText(range.least), " to ",
                              NumberText(range.most)));
    }
}

long WholeNumber(std::string_view name, const Json& value, Range<long> range) {
    if (!value.is_number_integer()) {
        WrongType(name, "a whole number");
    }
    CheckRange(name, value.get<double>(),
               {static_cast<double>(range.least), static_cast<double>(range.most)});
    return value.get<long>();
}

}  // namespace

std::string JsonLine(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Fields::Fields(const Json& object) : object(object) {}

const Json* Fields::Find(std::string_view name) {
    known.emplace(name);
    const auto field = object.find(std::string(name));
    return field == object.end() ? nullptr : &*field;
}

bool Fields::Has(std::string_view name) {
    return Find(name) != nullptr;
}

std::string Fields::String(std::string_view name, std::string_view otherwise) {
    const Json* value = Find(name);
    if (value == nullptr) {
        return std::string(otherwise);
    }
    if (!value->is_string()) {
        WrongType(name, "a string");
    }
    return value->get<std::string>();
}

bool Fields::Bool(std::string_view name, bool otherwise) {
    const Json* value = Find(name);
    if (value == nullptr) {
        return otherwise;
    }
    if (!value->is_boolean()) {
        WrongType(name, "true or false");
    }
    return value->get<bool>();
}

long Fields::Integer(std::string_view name, Range<long> range, long otherwise) {
    const Json* value = Find(name);
    return value == nullptr ? otherwise : WholeNumber(name, *value, range);
}

double Fields::Number(std::string_view name, Range<double> range, double otherwise) {
    const Json* value = Find(name);
    if (value == nullptr) {
        return otherwise;
    }
    if (!value->is_number()) {
        WrongType(name, "a number");
    }
    const auto number = value->get<double>();
    CheckRange(name, number, range);
    return number;
}

const Json* Fields::FindArray(std::string_view name, std::optional<std::size_t> most) {
    const Json* value = Find(name);
    if (value == nullptr) {
        return nullptr;
    }
    if (!value->is_array()) {
        WrongType(name, "an array");
    }
    if (most && value->size() > *most) {
        throw BadRequest(
            Text("\"", name, "\" has more than ", WholeText(static_cast<long>(*most)), " entries"));
    }
    return value;
}

std::vector<std::string> Fields::Strings(std::string_view name, std::optional<std::size_t> most) {
    std::vector<std::string> strings;
    if (const Json* array = FindArray(name, most)) {
        for (const Json& entry : *array) {
            if (!entry.is_string()) {
                WrongType(name, "an array of strings");
            }
            strings.push_back(entry.get<std::string>());
        }
    }
    return strings;
}

std::vector<long> Fields::Integers(std::string_view name, std::size_t most, Range<long> range) {
    std::vector<long> integers;
    if (const Json* array = FindArray(name, most)) {
        for (const Json& entry : *array) {
            integers.push_back(WholeNumber(name, entry, range));
        }
    }
    return integers;
}

std::vector<const Json*> Fields::Objects(std::string_view name, std::size_t most) {
    std::vector<const Json*> objects;
    if (const Json* array = FindArray(name, most)) {
        for (const Json& entry : *array) {
            if (!entry.is_object()) {
                WrongType(name, "an array of objects");
            }
            objects.push_back(&entry);
        }
    }
    return objects;
}

const Json* Fields::Object(std::string_view name) {
    const Json* value = Find(name);
    if (value != nullptr && !value->is_object()) {
        WrongType(name, "an object");
    }
    return value;
}

void Fields::RejectOthers() const {
    for (const auto& field : object.items()) {
        if (known.find(field.key()) == known.end()) {
            throw BadRequest(Text("unknown field \"", field.key(), "\""));
        }
    }
}

}  // namespace numerello
