#pragma once

namespace vaticlo {

/// A library of the system that is opened by its name when something first needs it, so that not every start
/// of the program pays for it. It is never closed: what lies below it may not survive being unloaded.
class Libreria {
 public:
  explicit Libreria(const char* nome);

  /// Points `funzione` to the entry of that name; to nothing when there is none, or no library.
  template <class Funzione>
  void prendi(Funzione& funzione, const char* nome) const {
    funzione = reinterpret_cast<Funzione>(indirizzo(nome));
  }

 private:
  [[nodiscard]] void* indirizzo(const char* nome) const;

  void* libreria_;
};

}  // namespace vaticlo
