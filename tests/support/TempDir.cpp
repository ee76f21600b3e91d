// SPDX-License-Identifier: GPL-3.0-or-later
#include "TempDir.h"

#include <fstream>
#include <stdexcept>
#include <stdlib.h>

TempDir::TempDir()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "wanderkit-test-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("cannot create a temporary folder");
    m_path = pattern;
}

TempDir::~TempDir()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::filesystem::path TempDir::write(const std::filesystem::path& relative, std::string_view bytes) const
{
    const auto file = m_path / relative;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return file;
}

std::string TempDir::read(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}
