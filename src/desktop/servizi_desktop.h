#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "platform/servizi.h"

class QProgressDialog;
class QWidget;

namespace vaticlo {

struct LimitiScaricamento;

/// The services of the desktop: message boxes, input boxes, the default printer, the network, the browser.
class ServiziDesktop : public Servizi {
 public:
  ServiziDesktop();
  ~ServiziDesktop() override;

  Risposta mostra(const Messaggio& messaggio) override;
  std::string chiedi(const std::string& testo, const std::string& titolo) override;
  std::string scegli(const std::string& testo, const std::string& titolo,
                     const std::vector<std::string>& voci) override;
  std::filesystem::path scegliFile(const std::string& titolo) override;
  void avanzamento(const std::string& lavoro, int percento) override;
  void stampa(const std::string& testo) override;
  bool scarica(const std::string& indirizzo, const std::filesystem::path& destinazione) override;
  Scaricato preleva(const std::string& indirizzo, std::int64_t seModificatoDopo) override;
  void segnala(const std::string& testo) override;
  void fatto(const std::string& testo) override;
  void apriPagina(const std::string& indirizzo) override;
  [[nodiscard]] std::chrono::year_month_day oggi() const override;
  void eventiInAttesa() override;
  void ridisegna() override;

  /// The window that boxes belong to.
  void padre(QWidget* padre) { padre_ = padre; }

 private:
  void inDisparte(const std::function<void(const LimitiScaricamento&)>& scarica);

  QWidget* padre_ = nullptr;
  std::unique_ptr<QProgressDialog> lavoro_;
  QString avviso_;  ///< what was said in passing last
};

}  // namespace vaticlo
