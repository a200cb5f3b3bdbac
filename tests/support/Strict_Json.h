// As much of RFC 8259 as the tests read: objects of strings, whole numbers and null. Strict: anything else throws
// std::runtime_error with its place.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct Json_Value
{
    std::string m_text;          // of a string
    std::optional<int> m_number; // of a number
    bool m_is_null = false;
};

using Json_Object = std::map<std::string, Json_Value>;

Json_Object Read_Json_Object(std::string_view json);
std::vector<Json_Object> Read_Json_Objects(std::string_view json); // an array of them
