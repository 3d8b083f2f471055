# Turns the picture of the report logo into a C++ source, so that the program needs no data folder beside it.
# Run as: cmake -DINPUT=file.jpg -DOUTPUT=file.cpp -P EmbedLogo.cmake
file(READ "${INPUT}" bytes HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
file(WRITE "${OUTPUT}" "#include \"sample/installation/ReportLogo.h\"

namespace sample {

namespace {
constexpr unsigned char bytes[] = {${bytes}};
} // namespace

std::span<const unsigned char> reportLogo() {
    return bytes;
}

} // namespace sample
")
