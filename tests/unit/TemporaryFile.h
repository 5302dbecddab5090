#pragma once

#include <string>
#include <string_view>

// A file of this text that lives as long as the object.
class TemporaryFile
{
public:
    explicit TemporaryFile(std::string_view text);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& Path() const { return m_Path; }

private:
    std::string m_Path;
};
