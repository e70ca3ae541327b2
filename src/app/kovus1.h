#pragma once

#include <QMainWindow>
#include <functional>

#include "app/kovu1.h"
#include "config/cphclass.h"
#include "interact/user.h"
#include "lattice/lmap.h"

class QLabel;
class QMenu;
class QTabWidget;

namespace kov {

/// The window of the user algorithms: the place for algorithms of one's own. StartAlgus1Click and
/// StartAlgus2Click are where they go.
///
/// The window lives as long as the program. It stays open beside the main window, and what its pages hold
/// stays between showings.
class TUF1 final : public QMainWindow {
 public:
  /// The main window must outlive it.
  explicit TUF1(TF1& main_window);

  // The controls, under the names by which an algorithm knows them.
  QTabWidget* const PaCo;
  QLabel* const ProposalLabel1;
  QLabel* const ProposalLabel2;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  /// The warning level as a plain number, always the present one.
  class WarningLevel {
   public:
    explicit WarningLevel(const Messages& messages) : messages_(messages) {}
    // NOLINTNEXTLINE(google-explicit-constructor): an algorithm writes "if (wl > 2)".
    operator int() const { return messages_.wl(); }

   private:
    const Messages& messages_;
  };

  void FormShow();
  void StartAlgus1Click();
  void StartAlgus2Click();
  void CloseUF1Click();
  void ExitPrgClick();

  QLabel* add_page(const char* name, const char* label_name, const char* text);
  void make_menu();
  void add_item(QMenu& menu, const char* caption, const std::function<void()>& click);

  TF1& F1;

  // What an algorithm works with, under the names by which it knows them.
  Lmap& lmap;
  cphclass& cph;
  const User user;
  const WarningLevel wl;
};

}  // namespace kov
