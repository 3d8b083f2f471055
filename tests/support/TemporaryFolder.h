#pragma once

#include <filesystem>
#include <random>
#include <string>

/// A folder of its own under the system's temporary folder, removed with all it holds at the end of the test.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / ("callscope-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string file(const std::string& name) const { return (path_ / name).string(); }
    const std::filesystem::path& path() const { return path_; }
    std::string text() const { return path_.string(); }
    /// Makes a folder in it and gives its path.
    std::string makeFolder(const std::string& name) const {
        std::filesystem::create_directories(path_ / name);
        return file(name);
    }

private:
    std::filesystem::path path_;
};
