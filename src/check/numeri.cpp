#include "check/numeri.h"

#include <algorithm>

#include "archive/ruota.h"
#include "archive/somdif.h"

namespace vaticlo {

// The order of the tests decides for 9, 90 and the numbers with two equal digits.
int vert(int n) {
  const int q = n / 10, u = n % 10;
  if (q == u) return 10 * q + 9;
  if (n == 9) return kNumeri;
  if (u == 9) return 10 * q + q;
  return 10 * u + q;
}

int Diametrale(int n) { return n + kNumeri / 2 > kNumeri ? n + kNumeri / 2 - kNumeri : n + kNumeri / 2; }

int Somma30(int n) { return n + 30 > kNumeri ? n + 30 - kNumeri : n + 30; }

int Figura(int n) {
  const int somma = n / 10 + n % 10;
  return somma > 9 ? somma - 9 : somma;
}

int Decina(int n) { return n / 10; }

int Cadenza(int n) { return n - 10 * Decina(n); }

int Mezzadecina(int n) {
  if (n == kNumeri) return 5;
  if (n == 5) return kNumeri;
  return Cadenza(n) < 5 ? n + 5 : n - 5;
}

int DistanzaCiclica(int a, int b) { return DistanzaCiclo(a, b); }

int DifferenzaCiclica(int a, int b) { return a - b < 1 ? a - b + kNumeri : a - b; }

int MinimoCinque(int a, int b, int c, int d, int e) { return std::min({a, b, c, d, e}); }

int MassimoTre(int a, int b, int c) { return std::max({a, b, c}); }

}  // namespace vaticlo
