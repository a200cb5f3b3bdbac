#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// The lines of every source, form and build file, by path from the top of the checkout ("src/pdu/PDU.h").
using Source_Tree = std::map<std::string, std::vector<std::string>>;

struct Include
{
    std::size_t line = 0; ///< from 1
    std::string path;
    bool is_quoted = false;
};

/// Reads the folders (src, phone, tests, ...) below the top.
Source_Tree Read_Source_Tree(const std::filesystem::path& top, const std::vector<std::string>& folders);

/// The same lines with comments, texts and character literals blanked out.
std::vector<std::string> Code_Of(const std::vector<std::string>& lines);

/// What the lines include; an include inside a comment is none.
std::vector<Include> Includes_Of(const std::vector<std::string>& lines);

bool Is_Cpp(const std::string& path);
