// The fuzz target without libFuzzer: replays the inputs given on the command
// line (files, or folders of them), then runs random inputs from a seed
// until the time is up.
//   textzone_fuzz [--seconds N] [--seed S] [--trace | --trace-lines] [--save DIR] [FILE|DIR]...
// An input that fails aborts the run; with --save, each random input is
// written to DIR before it runs, so the failing one is there to replay.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "ZoneFuzzer.h"

namespace fs = std::filesystem;

namespace {

std::vector<std::uint8_t> ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

long RunInput(const std::vector<std::uint8_t>& input) {
    return CZoneFuzzer::Run(input.data(), input.size());
}

}  // namespace

int main(int argc, char** argv) {
    double seconds = 10;
    unsigned seed = static_cast<unsigned>(std::random_device{}());
    std::string saveDir;
    std::vector<fs::path> inputs;
    for (int i = 1; i < argc; ++i) {
        std::string arg = argv[i];
        if (arg == "--seconds" && i + 1 < argc)
            seconds = std::atof(argv[++i]);
        else if (arg == "--seed" && i + 1 < argc)
            seed = static_cast<unsigned>(std::strtoul(argv[++i], nullptr, 10));
        else if (arg == "--save" && i + 1 < argc)
            saveDir = argv[++i];
        else if (arg == "--trace")
            CZoneFuzzer::SetTrace(1);
        else if (arg == "--trace-lines")
            CZoneFuzzer::SetTrace(2);
        else
            inputs.emplace_back(arg);
    }

    long runs = 0, ops = 0;
    for (const fs::path& input : inputs) {
        std::vector<fs::path> files;
        if (fs::is_directory(input)) {
            for (const auto& entry : fs::directory_iterator(input))
                if (entry.is_regular_file()) files.push_back(entry.path());
        } else {
            files.push_back(input);
        }
        for (const fs::path& file : files) {
            std::fprintf(stderr, "replaying %s\n", file.c_str());
            ops += RunInput(ReadFile(file));
            ++runs;
        }
    }

    std::printf("seed %u\n", seed);
    std::fflush(stdout);
    std::mt19937 random(seed);
    const auto stop = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (std::chrono::steady_clock::now() < stop) {
        // Mostly short inputs, so that runs start often from fresh controls.
        std::vector<std::uint8_t> input(8 + random() % 600);
        for (auto& byte : input)
            byte = static_cast<std::uint8_t>(random());
        if (!saveDir.empty()) {
            std::ofstream out(fs::path(saveDir) / "last-input", std::ios::binary);
            out.write(reinterpret_cast<const char*>(input.data()),
                      static_cast<std::streamsize>(input.size()));
        }
        ops += RunInput(input);
        ++runs;
    }
    std::printf("%ld runs, %ld operations, all clean\n", runs, ops);
    return 0;
}
