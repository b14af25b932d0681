#include <string>
#include <vector>

#include "cli/Companion.h"

int main(int argc, char** argv) {
  return kvr5::cli::Run(std::vector<std::string>(argv + 1, argv + argc));
}
