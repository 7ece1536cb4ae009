#pragma once

#include <QObject>
#include <QString>
#include <vector>

#include "model/drawing_record.h"
#include "model/game_session.h"
#include "model/result.h"

namespace quorvane {

class TextBox;

/// The user's drawings of a game: the records that the map shows, their text, which the user may
/// edit by hand, and whether that is saved. Everybody else asks here.
class DrawingLayer : public QObject {
  Q_OBJECT

 public:
  /// @param editor  where the text is shown and edited
  explicit DrawingLayer(TextBox& editor);

  /// The records as they were last read from the drawing file; lines that were added or edited
  /// since then are not among them.
  const std::vector<DrawingRecord>& Records() const { return records_; }
  /// Whether the text is what the drawing file holds.
  bool IsSaved() const;

  /// Takes records that are saved: those of a newly loaded game.
  void Show(std::vector<DrawingRecord> records);
  /// Reads the drawing file of a game anew; where that fails, the layer stays.
  Result<void> Read(const GameSession& session);
  /// Adds a record at the end of the text.
  void Append(const DrawingRecord& record);
  /// Empties the text; its file stays as it is.
  void Clear();
  /// Replaces the drawing file of a game by the text.
  Result<void> Save(const GameSession& session);

 signals:
  /// The text may be saved now, or no longer be so.
  void Changed();

 private:
  void TakeAsSaved();

  TextBox& editor_;
  std::vector<DrawingRecord> records_;
  QString saved_;  // as the editor's document keeps it
};

}  // namespace quorvane
