// Replays fuzz inputs through a target's entry point without libFuzzer, so that the
// suite (and its sanitizer run) checks every input a target was ever given to keep:
//   replay_<target> FOLDER|FILE...
// Each file goes through LLVMFuzzerTestOneInput once, in name order. A crash ends
// the process; the last name printed is the input that caused it.

#include "fuzz_target.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

namespace {

namespace fs = std::filesystem;

// The files of a folder in name order, or the path itself when it names a file.
std::vector<fs::path> inputs_of(const fs::path& path, std::error_code& error)
{
    std::vector<fs::path> files;
    if (!fs::is_directory(path, error)) {
        if (fs::is_regular_file(path, error)) {
            files.push_back(path);
        }
        return files;
    }
    for (const fs::directory_entry& entry : fs::directory_iterator(path, error)) {
        if (entry.is_regular_file(error)) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string contents_of(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s FOLDER|FILE...\n", argv[0]);
        return 2;
    }
    LLVMFuzzerInitialize(&argc, &argv);
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        std::error_code error;
        const std::vector<fs::path> files = inputs_of(argv[i], error);
        // A corpus that went missing must not pass as one that passed.
        if (files.empty()) {
            const std::string reason = error ? error.message() : std::string("no files");
            std::fprintf(stderr, "%s: no inputs (%s)\n", argv[i], reason.c_str());
            return 1;
        }
        for (const fs::path& file : files) {
            std::printf("%s\n", file.string().c_str());
            std::fflush(stdout);
            const std::string data = contents_of(file);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(data.data()), data.size());
            ++replayed;
        }
    }
    std::printf("%d inputs replayed\n", replayed);
    return 0;
}
