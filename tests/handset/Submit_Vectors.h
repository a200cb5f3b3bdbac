// The frames of tests/data/submit_vectors.json: built by hand after 3GPP TS 23.040, each with the text that a handset
// shows.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

struct Submit_Vector
{
    std::string m_name;
    std::string m_pdu;
    std::string m_text; // UTF-8
    std::size_t m_centre_octets = 0;
};

// Throws std::runtime_error, with the place, on anything that is not exactly an array of such objects.
std::vector<Submit_Vector> Read_Submit_Vectors();
