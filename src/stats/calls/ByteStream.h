#pragma once

#include "data/types/DatabaseError.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

/// Numbers and texts one behind the other, in the byte order of the machine.
class ByteWriter {
public:
    void number(std::int64_t value) { put(&value, sizeof value); }
    void real(double value) { put(&value, sizeof value); }
    void text(std::string_view value) {
        number(static_cast<std::int64_t>(value.size()));
        bytes_.append(value);
    }
    const std::string& bytes() const { return bytes_; }

private:
    void put(const void* from, std::size_t size) { bytes_.append(static_cast<const char*>(from), size); }
    std::string bytes_;
};

/// Reads what a ByteWriter wrote. Throws DatabaseError 3049 behind the end.
class ByteReader {
public:
    explicit ByteReader(std::string_view bytes) : rest_(bytes) {}
    std::int64_t number() { return take<std::int64_t>(); }
    double real() { return take<double>(); }
    std::string text() {
        const auto size = static_cast<std::uint64_t>(number());
        need(size);
        const std::string value(rest_.substr(0, size));
        rest_.remove_prefix(size);
        return value;
    }

private:
    void need(std::uint64_t size) const {
        if (size > rest_.size())
            throw DatabaseError(3049, "Kept columns are damaged");
    }
    template<typename T>
    T take() {
        need(sizeof(T));
        T value;
        std::memcpy(&value, rest_.data(), sizeof value);
        rest_.remove_prefix(sizeof value);
        return value;
    }
    std::string_view rest_;
};
