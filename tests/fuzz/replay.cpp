// Feeds the files of folders to a fuzz target, without a fuzzer: replay FOLDER...
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace orlamo::fuzz {
void ORLAMO_FUZZ_TARGET(std::string_view bytes);
}

int main(int count, char** words) {
    int files = 0;
    for (int i = 1; i < count; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(words[i])) {
            std::printf("%s\n", entry.path().c_str());  // the last line names the one that ended the program
            std::fflush(stdout);
            std::ifstream file(entry.path(), std::ios::binary);
            orlamo::fuzz::ORLAMO_FUZZ_TARGET(std::string(std::istreambuf_iterator<char>(file), {}));
            ++files;
        }
    }
    return files > 0 ? 0 : 1;
}
