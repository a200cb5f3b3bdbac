#include "handset/Submit_Vectors.h"

#include "support/Strict_Json.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

std::vector<Submit_Vector> Read_Submit_Vectors()
{
    std::ifstream file(CORVANE_TEST_DATA "/submit_vectors.json", std::ios::binary);
    const std::string json{std::istreambuf_iterator<char>(file), {}};
    std::vector<Submit_Vector> vectors;
    for (const auto& object : Read_Json_Objects(json)) {
        if (object.size() != 4)
            throw std::runtime_error("a vector has four fields");
        vectors.push_back({object.at("name").m_text, object.at("pdu").m_text, object.at("text").m_text,
                           std::size_t(object.at("sca_len").m_number.value())});
    }
    return vectors;
}
