// Runs a fuzz target where the compiler brings no fuzzer of its own.
//
//     fuzz_statement [--runs N] [--seconds S] [--seed N] [--corpus DIR] [--failing DIR] [--least-accepted PERCENT]
//     [file...]
//
// With files: replays them. Without: replays the corpus folder, then mutates its files and the target's own seeds.
// Every input is written to <failing>/<target>.last before it runs, so that a crash leaves it behind; exits with 1
// where an exception came out or an input took more than ten seconds of the processor.

#include "fuzz/Coverage.h"
#include "fuzz/Mutator.h"
#include "fuzz/Target.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t longestInput = 1 << 17;
constexpr double longestSeconds = 10.0;

struct Options {
    long runs = 1000000000;
    double seconds = 1e9;
    unsigned long seed = 1;
    std::string corpus;
    std::string failing = ".";
    double leastAccepted = 0.0;
    std::vector<std::string> files;
};

Options readOptions(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string name = arguments[i];
        if (!name.starts_with("--")) {
            options.files.push_back(name);
            continue;
        }
        if (i + 1 == count)
            throw std::invalid_argument(name + " needs a value");
        const std::string value = arguments[++i];
        if (name == "--runs")
            options.runs = std::stol(value);
        else if (name == "--seconds")
            options.seconds = std::stod(value);
        else if (name == "--seed")
            options.seed = std::stoul(value);
        else if (name == "--corpus")
            options.corpus = value;
        else if (name == "--failing")
            options.failing = value;
        else if (name == "--least-accepted")
            options.leastAccepted = std::stod(value);
        else
            throw std::invalid_argument("unknown option " + name);
    }
    return options;
}

std::string contents(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw std::invalid_argument("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::filesystem::path> filesIn(const std::string& folder) {
    std::vector<std::filesystem::path> files;
    if (!folder.empty() && std::filesystem::is_directory(folder)) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.is_regular_file())
                files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

class Run {
public:
    Run(Options options, std::string target)
        : options_(std::move(options)), last_((std::filesystem::path(options_.failing) / (target + ".last")).string()) {
    }

    /// False where the input showed a fault.
    bool one(const std::string& input) {
        std::ofstream(last_, std::ios::binary | std::ios::trunc) << input;
        coverage::begin();
        const std::clock_t start = std::clock(); // of this process, however busy the machine is
        try {
            accepted_ += LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size()) == 0;
        } catch (const std::exception& error) {
            return fault(error.what());
        }
        ++runs_;
        took_ = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        return took_ <= longestSeconds || fault("it took " + std::to_string(took_) + " seconds");
    }

    /// Whether the last input is worth mutating: slow ones would take up the whole run.
    bool isQuick() const { return took_ < 0.01; }

    /// Runs known inputs; the quick ones are put into `inputs`.
    bool replay(const std::vector<std::filesystem::path>& files, std::vector<std::string>& inputs) {
        for (const auto& file : files) {
            std::string input = contents(file);
            if (!one(input)) {
                std::cerr << "  (a replay of " << file.string() << ")\n";
                return false;
            }
            if (isQuick())
                inputs.push_back(std::move(input));
        }
        return true;
    }

    bool mutate(Mutator& mutator) {
        const auto start = Clock::now();
        for (const std::string& seed : std::vector<std::string>(mutator.inputs())) {
            if (!one(seed))
                return false;
            coverage::takeNew();
        }
        for (long i = 0; i < options_.runs && secondsSince(start) < options_.seconds; ++i) {
            // Each input follows from the seed and its number alone, as long as nothing is kept.
            std::mt19937_64 random(options_.seed * 0x9E3779B97F4A7C15ULL + static_cast<std::uint64_t>(i));
            std::string input = mutator.next(random);
            if (!one(input))
                return false;
            if (coverage::takeNew() > 0 && isQuick())
                mutator.keep(std::move(input));
        }
        return true;
    }

    int finish(const std::string& target, std::size_t inputs) {
        std::filesystem::remove(last_);
        const double percent = runs_ == 0 ? 0.0 : 100.0 * static_cast<double>(accepted_) / static_cast<double>(runs_);
        std::cout << target << ": " << runs_ << " inputs, " << percent << " % of them accepted, " << inputs << " kept, "
                  << coverage::total() << " places reached\n";
        if (percent >= options_.leastAccepted)
            return 0;
        std::cerr << target << ": too few inputs mean anything; the seeds are not what they were\n";
        return 1;
    }

private:
    bool fault(const std::string& words) const {
        std::cerr << "fault: " << words << "\n  the input is in " << last_ << "\n";
        return false;
    }

    Options options_;
    std::string last_;
    long runs_ = 0;
    long accepted_ = 0;
    double took_ = 0.0; ///< seconds of the processor that the last input took
};

} // namespace

int main(int count, char** arguments) {
    try {
        const Options options = readOptions(count, arguments);
        const std::string target = std::filesystem::path(arguments[0]).stem().string();
        Run run(options, target);
        std::vector<std::string> inputs = fuzzSeeds();
        if (!options.files.empty())
            return run.replay({options.files.begin(), options.files.end()}, inputs) ? run.finish(target, 0) : 1;
        if (!run.replay(filesIn(options.corpus), inputs))
            return 1;
        Mutator mutator(std::move(inputs), fuzzTokens(), longestInput);
        return run.mutate(mutator) ? run.finish(target, mutator.inputs().size()) : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 2;
    }
}
