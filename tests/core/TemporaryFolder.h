#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

/// A fresh, empty folder that goes with the object, with all that lies in it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "callscope-test-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("cannot make a temporary folder");
        path_ = pattern;
    }
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::string text() const { return path_.string(); }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    std::string makeFolder(const std::string& name) const {
        std::filesystem::create_directories(path_ / name);
        return file(name);
    }

private:
    std::filesystem::path path_;
};

inline std::string readText(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline void writeText(const std::string& file, const std::string& text) {
    std::ofstream out(file, std::ios::binary);
    out << text;
}
