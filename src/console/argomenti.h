#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vaticlo {

/// What a command line gives to its command: texts by the names of the parameters, defaults included.
class Argomenti {
 public:
  void metti(const std::string& nome, std::vector<std::string> testi) { testi_[nome] = std::move(testi); }

  /// The text of a parameter that is always there: a necessary one, or one with a default.
  [[nodiscard]] const std::string& operator[](std::string_view nome) const { return tutti(nome).front(); }
  /// The texts of a parameter that takes several.
  [[nodiscard]] const std::vector<std::string>& tutti(std::string_view nome) const {
    return testi_.find(nome)->second;
  }
  [[nodiscard]] std::optional<std::string> seDato(std::string_view nome) const;
  /// The text as a whole number. UsoErrato when it is none.
  [[nodiscard]] int intero(std::string_view nome) const;

 private:
  std::map<std::string, std::vector<std::string>, std::less<>> testi_;
};

}  // namespace vaticlo
