#include <cstdio>

int main() {
  std::puts("quenbyctl");
  return 0;
}
