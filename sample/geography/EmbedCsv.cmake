# Turns a text file into a C++ source that defines its lines, so that the program needs no data folder beside it.
# Run as: cmake -DINPUT=file.csv -DOUTPUT=file.cpp -DNAME=towns -P EmbedCsv.cmake
file(READ "${INPUT}" text)
string(REPLACE "\r" "" text "${text}")
string(REGEX REPLACE "\n+$" "" text "${text}")
string(REPLACE "\\" "\\\\" text "${text}")
string(REPLACE "\"" "\\\"" text "${text}")
string(REPLACE "\n" "\",\n    \"" text "${text}")
get_filename_component(file "${INPUT}" NAME)
file(WRITE "${OUTPUT}" "#include \"sample/geography/EmbeddedCsv.h\"

namespace sample {

namespace {
constexpr std::string_view lines[] = {
    \"${text}\",
};
} // namespace

const EmbeddedCsv& ${NAME}Csv() {
    static constexpr EmbeddedCsv csv{\"${file}\", lines};
    return csv;
}

} // namespace sample
")
