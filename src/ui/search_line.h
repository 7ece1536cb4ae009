#pragma once

#include <QLineEdit>
#include <functional>
#include <optional>

#include "screens/planet_query.h"
#include "screens/query_completion.h"

class QCompleter;
class QStringListModel;

namespace quorvane {

/// The line that a search is typed into. While the user types, it offers how the word at the cursor
/// may go on, and a text that is no search is marked where it is wrong.
class SearchLine : public QLineEdit {
  Q_OBJECT

 public:
  /// How a text may go on at a place, in bytes.
  using Completions = std::function<QueryCompletion(std::string_view text, std::size_t cursor)>;

  SearchLine(Completions completions, QWidget* parent);

  /// Marks what is wrong with the text as it stands; nothing: it is all right.
  void ShowFault(const std::optional<QueryFault>& fault);
  /// The characters that are marked: the first one and how many.
  std::pair<int, int> Marked() const { return marked_; }

 signals:
  /// The user wants to go on in the list of what was found.
  void ListAsked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Offer();
  void Insert(const QString& entry);

  Completions completions_;
  QCompleter* completer_ = nullptr;
  QStringListModel* entries_ = nullptr;
  QueryCompletion offered_;
  std::pair<int, int> marked_;
};

}  // namespace quorvane
