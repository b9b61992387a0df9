#include <cstdio>
#include <cstring>

// Placeholder until the command-line tool lands.
int main(int argc, char** argv) {
  if (argc < 2 || std::strcmp(argv[1], "--help") == 0) {
    std::puts("usage: veltrix-cli COMMAND ...");
    return argc < 2 ? 2 : 0;
  }
  std::fprintf(stderr, "veltrix-cli: unknown command '%s'\n", argv[1]);
  return 2;
}
