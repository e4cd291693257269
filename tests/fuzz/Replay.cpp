// Usage: fuzz_... FOLDER. Runs a target on each file of a folder.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "Scratch.h"

int main(int argc, char** argv)
{
    MUST(argc == 2);
    std::vector<std::filesystem::path> inputs;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1]))
        inputs.push_back(entry.path());
    std::sort(inputs.begin(), inputs.end());
    MUST(!inputs.empty());
    for (const auto& input : inputs) {
        std::ifstream in(input, std::ios::binary);
        const std::string content{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        std::printf("%s\n", input.filename().c_str());
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
    }
    std::printf("%zu inputs\n", inputs.size());
    return 0;
}
