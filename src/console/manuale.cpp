#include "console/manuale.h"

namespace vaticlo {

namespace {

bool opzione(const Parametro& parametro) { return parametro.nome.starts_with("--"); }

// Whether the value is the name of a method that is there.
bool chiedeMetodo(const Parametro& parametro) {
  return parametro.nome == "METODO" || parametro.nome == "VERSO" || parametro.nome == "--metodo";
}
bool chiedeMetodo(const Comando& comando) {
  if (comando.nome == "metodo rinomina" || comando.nome == "metodo elimina") return true;
  for (const auto& parametro : comando.parametri)
    if (!opzione(parametro) && chiedeMetodo(parametro)) return true;
  return false;
}
bool chiedeFile(const Comando& comando) {
  return !comando.parametri.empty() && comando.parametri.front().nome == "FILE";
}

// A text as man(7) takes it: no escape begins in it, no request, and its hyphens can be copied.
std::string inRoff(std::string_view testo) {
  std::string uscita;
  for (const char c : testo) {
    if (c == '\\')
      uscita += "\\e";
    else if (c == '-')
      uscita += "\\-";
    else
      uscita += c;
  }
  if (uscita.starts_with('.') || uscita.starts_with('\'')) uscita.insert(0, "\\&");
  return uscita;
}

std::string sinossi(const Comando& comando) {
  std::string testo = "\\fB" + inRoff(comando.nome) + "\\fR";
  for (const auto& parametro : comando.parametri) {
    const auto valore = parametro.quanti == 0 ? "" : " \\fI" + inRoff(parametro.tipo) + "\\fR";
    if (parametro.facoltativo)
      testo += " [\\fI" + inRoff(parametro.nome) + "\\fR]";
    else if (!opzione(parametro))
      testo += " \\fI" + inRoff(parametro.nome) + "\\fR" + (parametro.quanti > 1 ? "..." : "");
    else if (parametro.necessario)
      testo += " \\fB" + inRoff(parametro.nome) + "\\fR" + valore;
    else
      testo += " [\\fB" + inRoff(parametro.nome) + "\\fR" + valore + "]";
  }
  return testo;
}

/// The words that may follow a group, with what they do; the group "" is the program itself.
struct Voci {
  std::string gruppo;
  std::vector<const Comando*> comandi;
};

std::vector<Voci> perGruppo(const std::vector<Comando>& tavola) {
  std::vector<Voci> gruppi = {{"", {}}};
  for (const auto& comando : tavola) {
    const auto spazio = comando.nome.find(' ');
    if (comando.fai == nullptr) gruppi.push_back({comando.nome, {}});
    auto& gruppo = spazio == std::string::npos ? gruppi.front() : gruppi.back();
    gruppo.comandi.push_back(&comando);
  }
  return gruppi;
}

std::string_view ultimaParola(const Comando& comando) {
  const auto spazio = comando.nome.find(' ');
  return std::string_view(comando.nome).substr(spazio == std::string::npos ? 0 : spazio + 1);
}

std::string conSpazi(const std::vector<std::string>& parole) {
  std::string testo;
  for (const auto& parola : parole) testo += (testo.empty() ? "" : " ") + parola;
  return testo;
}

/// What bash and zsh write alike: the cases of a command (its first words) for each thing that may follow.
struct Casi {
  std::string gruppi = "''";   ///< behind which another word of the command follows
  std::string parole;          ///< sets `parole` to the commands and options
  std::string valori;          ///< the same to the values of the option before, for a command and that option
  std::string metodi = "'?'";  ///< whose arguments name a method
  std::string file = "'?'";    ///< whose argument is a file
};

Casi casiDi(const std::vector<Comando>& tavola) {
  Casi casi;
  for (const auto& gruppo : perGruppo(tavola)) {
    if (!gruppo.gruppo.empty()) casi.gruppi += "|" + gruppo.gruppo;
    casi.parole += "    '" + gruppo.gruppo + "') parole='";
    for (const auto* comando : gruppo.comandi) casi.parole.append(ultimaParola(*comando)).append(" ");
    casi.parole += gruppo.gruppo.empty() ? "--cartella --help --version' ;;\n" : "--help' ;;\n";
  }
  for (const auto& comando : tavola) {
    if (comando.fai == nullptr) continue;
    casi.parole += "    '" + comando.nome + "') parole='";
    for (const auto& parametro : comando.parametri) {
      if (opzione(parametro) && !parametro.valori.empty())
        casi.valori += "    '" + comando.nome + " " + parametro.nome + "') parole='" +
                       conSpazi(parametro.valori) + "' ;;\n";
      casi.parole += (opzione(parametro) ? parametro.nome : conSpazi(parametro.valori)) + " ";
    }
    casi.parole += "--help' ;;\n";
    if (chiedeMetodo(comando)) casi.metodi += "|'" + comando.nome + "'";
    if (chiedeFile(comando)) casi.file += "|'" + comando.nome + "'";
  }
  return casi;
}

std::string perBash(const std::vector<Comando>& tavola) {
  const auto casi = casiDi(tavola);
  return R"BASH(# Completamento di vaticlo-cli per bash.
_vaticlo_cli() {
  local attuale=${COMP_WORDS[COMP_CWORD]} prima=${COMP_WORDS[COMP_CWORD-1]} comando='' parole='' cartella=() n
  for ((n = 1; n < COMP_CWORD; n++)); do
    case ${COMP_WORDS[n]} in
      --cartella) cartella=(--cartella "${COMP_WORDS[++n]}") ;;
      -*) ;;
      *) case $comando in
           )BASH" +
         casi.gruppi + R"BASH() comando="${comando:+$comando }${COMP_WORDS[n]}" ;;
         esac ;;
    esac
  done
  COMPREPLY=()
  if [[ $prima == --cartella ]]; then compopt -o dirnames; return; fi
  if [[ $prima == --csv ]]; then compopt -o default; return; fi
  case $comando in
)BASH" + casi.parole +
         R"BASH(  esac
  case "$comando $prima" in
)BASH" + casi.valori +
         R"BASH(  esac
  if [[ $attuale != -* && $prima != --* ]]; then
    case $comando in
      )BASH" +
         casi.file + R"BASH() compopt -o default ;;
      )BASH" +
         casi.metodi + R"BASH() prima=--metodo ;;
    esac
  fi
  if [[ $prima == --metodo && $attuale != -* ]]; then
    local nome inizio=${attuale//[\\\'\"]/}
    while IFS= read -r nome; do
      [[ $nome == "$inizio"* ]] && COMPREPLY+=("$(printf %q "$nome")")
    done < <("${COMP_WORDS[0]}" "${cartella[@]}" metodo elenco 2>/dev/null)
    return
  fi
  mapfile -t COMPREPLY < <(compgen -W "$parole" -- "$attuale")
}
complete -F _vaticlo_cli vaticlo-cli
)BASH";
}

std::string perZsh(const std::vector<Comando>& tavola) {
  const auto casi = casiDi(tavola);
  return R"ZSH(#compdef vaticlo-cli
# Completamento di vaticlo-cli per zsh.
_vaticlo_cli() {
  local prima=$words[CURRENT-1] attuale=$words[CURRENT] comando='' parole='' n
  local -a cartella metodi
  for ((n = 2; n < CURRENT; n++)); do
    case $words[n] in
      --cartella) cartella=(--cartella ${(Q)words[n+1]}); ((n++)) ;;
      -*) ;;
      *) case $comando in
           )ZSH" +
         casi.gruppi + R"ZSH() comando="${comando:+$comando }$words[n]" ;;
         esac ;;
    esac
  done
  if [[ $prima == --cartella ]]; then _files -/; return; fi
  if [[ $prima == --csv ]]; then _files; return; fi
  case $comando in
)ZSH" + casi.parole +
         R"ZSH(  esac
  case "$comando $prima" in
)ZSH" + casi.valori +
         R"ZSH(  esac
  if [[ $attuale != -* && $prima != --* ]]; then
    case $comando in
      )ZSH" +
         casi.file + R"ZSH() _files; return ;;
      )ZSH" +
         casi.metodi + R"ZSH() prima=--metodo ;;
    esac
  fi
  if [[ $prima == --metodo && $attuale != -* ]]; then
    metodi=("${(@f)$($words[1] $cartella metodo elenco 2>/dev/null)}")
    compadd -a metodi
    return
  fi
  compadd -- ${=parole}
}
_vaticlo_cli "$@"
)ZSH";
}

// As a word of fish.
std::string traApici(std::string_view testo) {
  std::string uscita = "'";
  for (const char c : testo) uscita += c == '\'' ? std::string("\\'") : std::string(1, c);
  return uscita + "'";
}

std::string perFish(const std::vector<Comando>& tavola) {
  std::string testo =
      "# Completamento di vaticlo-cli per fish.\n"
      "complete -c vaticlo-cli -f\n"
      "complete -c vaticlo-cli -l cartella -r -a '(__fish_complete_directories)' -d 'Cartella del "
      "programma'\n"
      "complete -c vaticlo-cli -l help -d 'Mostra questo aiuto ed esce'\n";
  std::string gruppi;
  for (const auto& gruppo : perGruppo(tavola)) {
    if (!gruppo.gruppo.empty()) gruppi += " " + gruppo.gruppo;
    std::string parole;
    for (const auto* comando : gruppo.comandi) parole.append(" ").append(ultimaParola(*comando));
    const auto quando = gruppo.gruppo.empty() ? std::string("__fish_use_subcommand")
                                              : "__fish_seen_subcommand_from " + gruppo.gruppo +
                                                    "; and not __fish_seen_subcommand_from" + parole;
    for (const auto* comando : gruppo.comandi)
      testo += "complete -c vaticlo-cli -n " + traApici(quando) + " -a " + traApici(ultimaParola(*comando)) +
               " -d " + traApici(comando->aiuto) + "\n";
  }
  for (const auto& comando : tavola) {
    if (comando.fai == nullptr) continue;
    const auto spazio = comando.nome.find(' ');
    const auto quando =
        spazio == std::string::npos
            ? "__fish_seen_subcommand_from " + comando.nome + "; and not __fish_seen_subcommand_from" + gruppi
            : "__fish_seen_subcommand_from " + comando.nome.substr(0, spazio) +
                  "; and __fish_seen_subcommand_from " + comando.nome.substr(spazio + 1);
    const std::string metodi = " -a '(vaticlo-cli metodo elenco 2>/dev/null)'";
    for (const auto& parametro : comando.parametri) {
      const auto valori =
          parametro.valori.empty() ? std::string() : " -a " + traApici(conSpazi(parametro.valori));
      if (!opzione(parametro) && !valori.empty())
        testo += "complete -c vaticlo-cli -n " + traApici(quando) + valori + "\n";
      if (opzione(parametro))
        testo += "complete -c vaticlo-cli -n " + traApici(quando) + " -l " + parametro.nome.substr(2) +
                 (parametro.quanti > 0 ? " -r" : "") + (chiedeMetodo(parametro) ? metodi : valori) + " -d " +
                 traApici(parametro.aiuto) + "\n";
    }
    if (chiedeMetodo(comando)) testo += "complete -c vaticlo-cli -n " + traApici(quando) + metodi + "\n";
    if (chiedeFile(comando)) testo += "complete -c vaticlo-cli -n " + traApici(quando) + " -F\n";
  }
  return testo;
}

}  // namespace

std::string testoStatiDiUscita() {
  return "Stato d'uscita:\n"
         "  0    fatto\n"
         "  1    un errore di run-time, o un rapporto non intero: standard error dice il numero o il nome\n"
         "  2    uso sbagliato, o un file che non si legge: standard error dice che cosa e come si fa\n"
         "  3    rifiutato con un messaggio: archivio e metodi sono com'erano\n"
         "  130  fermato con Ctrl-C\n";
}

std::string testoJson(const Comando& comando) {
  std::string testo;
  for (const auto& [nome, aiuto] : comando.json)
    testo.append("  ").append(nome).append(": ").append(aiuto).append("\n");
  return testo.empty() ? testo : "L'oggetto JSON:\n" + testo;
}

std::string paginaDiManuale(const std::vector<Comando>& tavola) {
  std::string testo =
      ".TH VATICLO\\-CLI 1 \"\" \"Vaticlo " VATICLO_VERSION
      "\" \"Comandi\"\n.SH NOME\nvaticlo\\-cli \\- archivio del Lotto, previsioni, verifiche e statistiche\n"
      ".SH SINTASSI\n\\fBvaticlo\\-cli\\fR [\\fB\\-\\-cartella\\fR \\fIDIR\\fR] \\fICOMANDO\\fR "
      "[\\fIargomenti\\fR]\n"
      ".SH DESCRIZIONE\nTutto quel che fa \\fBvaticlo\\fR, senza finestre. La cartella del programma è "
      "quella "
      "dell'eseguibile, o quella data con \\fB\\-\\-cartella\\fR. A una domanda del programma risponde Sì.\n"
      ".SH COMANDI\n";
  for (const auto& comando : tavola) {
    if (comando.fai == nullptr) continue;
    testo += ".TP\n" + sinossi(comando) + "\n" + inRoff(comando.aiuto) + ".\n";
    if (comando.parametri.empty()) continue;
    testo += ".RS\n";
    for (const auto& parametro : comando.parametri)
      testo += ".TP\n\\f" + std::string(opzione(parametro) ? "B" : "I") + inRoff(parametro.nome) + "\\fR\n" +
               inRoff(parametro.aiuto) + ".\n";
    for (const auto& [nome, aiuto] : comando.json)
      testo += ".RS\n\\fB" + nome + "\\fR: " + inRoff(aiuto) + ".\n.br\n.RE\n";
    testo += ".RE\n";
  }
  testo +=
      ".SH \"USCITE PER ALTRI PROGRAMMI\"\n"
      "Con \\fB\\-\\-json\\fR un comando scrive un solo oggetto, in UTF\\-8, con i nomi che stanno sotto il "
      "comando: gli stessi in ogni versione. Quanti, colpi e percentuali sono numeri, le date testi come "
      "nell'archivio. Con \\fB\\-\\-csv\\fR scrive la tabella: UTF\\-8, la prima riga con i nomi delle "
      "colonne, punto e virgola tra i campi, virgola decimale. Un rifiuto (stato 3) resta un messaggio al "
      "posto dell'oggetto.\n"
      ".SH \"STATO D'USCITA\"\n.nf\n";
  auto stati = testoStatiDiUscita();
  testo += inRoff(std::string_view(stati).substr(stati.find('\n') + 1)) + ".fi\n";
  return testo +
         ".SH FILE\narchivion71.dat (le estrazioni), Metodi/ (un file per metodo), i rapporti *.txt: tutti "
         "nella "
         "cartella del programma.\n";
}

std::string completamento(std::string_view guscio, const std::vector<Comando>& tavola) {
  if (guscio == "bash") return perBash(tavola);
  if (guscio == "zsh") return perZsh(tavola);
  if (guscio == "fish") return perFish(tavola);
  return {};
}

}  // namespace vaticlo
