#include "widgets/dialogs.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <system_error>

#include "widgets/input_box.h"
#include "widgets/qt_text.h"

namespace kov {
namespace {

struct Look {
  QMessageBox::Icon icon;
  const char* title;
};

Look look_of(MessageKind kind) {
  switch (kind) {
    case MessageKind::error:
      return {QMessageBox::Critical, "Error"};
    case MessageKind::warning:
      return {QMessageBox::Warning, "Warning"};
    case MessageKind::remark:
      return {QMessageBox::Information, "Remark"};
    case MessageKind::information:
      break;
  }
  return {QMessageBox::Information, "Information"};
}

void set_text(QMessageBox& box, const std::string& text) {
  box.setTextFormat(Qt::PlainText);
  box.setText(to_qt(text));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void set_filters(QFileDialog& dialog) {
  dialog.setNameFilters({QStringLiteral("Lattice data (*.aa1)"), QStringLiteral("All files (*)")});
}

std::optional<std::filesystem::path> chosen(QFileDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return QFile::encodeName(dialog.selectedFiles().first()).toStdString();
}

/// Its folder becomes the current directory.
std::optional<std::filesystem::path> moved_to(std::optional<std::filesystem::path> path) {
  std::error_code no_folder;  // the caller finds out when it opens the file
  if (path) std::filesystem::current_path(path->parent_path(), no_folder);
  return path;
}

QString current_folder() {
  std::error_code gone;
  return QFile::decodeName(std::filesystem::current_path(gone).c_str());
}

}  // namespace

std::optional<std::string> ask_text(QWidget* parent, const InputDialog& dialog,
                                    const Questions::Accept& accept, const std::function<void()>& beep) {
  InputBox box(parent, dialog, accept, beep);
  if (box.exec() != QDialog::Accepted) return std::nullopt;
  return box.text();
}

bool ask_yes_no(QWidget* parent, const std::string& text) {
  QMessageBox box(parent);
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle(QApplication::applicationDisplayName());
  set_text(box, text);
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

bool ask_all_or_ok(QWidget* parent, const std::string& text) {
  QMessageBox box(parent);
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle(QApplication::applicationDisplayName());
  set_text(box, text);
  const QPushButton* all = box.addButton(QStringLiteral("All"), QMessageBox::YesRole);
  QPushButton* ok = box.addButton(QMessageBox::Ok);
  box.setDefaultButton(ok);
  box.setEscapeButton(ok);
  box.exec();
  return box.clickedButton() == all;
}

void show_message(QWidget* parent, MessageKind kind, const std::string& text) {
  const Look look = look_of(kind);
  QMessageBox box(parent);
  box.setIcon(look.icon);
  box.setWindowTitle(QString::fromLatin1(look.title));
  set_text(box, text);
  box.exec();
}

std::optional<std::filesystem::path> choose_file_to_open(QWidget* parent, const std::string& title) {
  QFileDialog dialog(parent, to_qt(title), current_folder());
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  set_filters(dialog);
  return moved_to(chosen(dialog));
}

std::optional<std::filesystem::path> choose_file_to_save(QWidget* parent, const std::string& title,
                                                         const std::filesystem::path& preset) {
  QFileDialog dialog(parent, to_qt(title), current_folder());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(QStringLiteral("aa1"));
  set_filters(dialog);
  if (preset.has_parent_path()) dialog.setDirectory(QFile::decodeName(preset.parent_path().c_str()));
  dialog.selectFile(QFile::decodeName(preset.filename().c_str()));
  return moved_to(chosen(dialog));
}

std::optional<std::filesystem::path> choose_file_to_export(QWidget* parent, const std::string& title,
                                                           const std::string& preset,
                                                           std::span<const FileKind> kinds) {
  QFileDialog dialog(parent, to_qt(title), current_folder());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  QStringList filters;
  for (const FileKind& kind : kinds) filters += QStringLiteral("%1 (*.%2)").arg(kind.name, kind.extension);
  dialog.setNameFilters(filters);
  dialog.setDefaultSuffix(kinds.front().extension);
  QObject::connect(&dialog, &QFileDialog::filterSelected, [&](const QString& filter) {
    dialog.setDefaultSuffix(kinds[static_cast<std::size_t>(filters.indexOf(filter))].extension);
  });
  dialog.selectFile(to_qt(preset));
  return chosen(dialog);
}

}  // namespace kov
