// Gives a fuzz target the files of a folder, for compilers without a fuzzer and for everyday tests.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: " << argv[0] << " FOLDER\n";
    return 2;
  }
  int count = 0;
  for (const auto& file : std::filesystem::directory_iterator(argv[1])) {
    std::cerr << file.path().filename() << std::endl; // the last one is the one that failed
    std::ifstream stream(file.path(), std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(stream), {});
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++count;
  }
  return count > 0 ? 0 : 1;
}
