#include "ui/changes_dock.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QClipboard>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {

/// The rows of the list; a game may have thousands.
class ChangeModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void Show(const std::vector<ChangeRow>& rows) {
    beginResetModel();
    Rows = rows;
    endResetModel();
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(Rows.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const QString text = ToQString(Rows.at(static_cast<std::size_t>(index.row())).Text);
    if (role == Qt::DisplayRole) return text;
    return role == Qt::ToolTipRole ? PlainToolTip(text) : QVariant();
  }

  std::vector<ChangeRow> Rows;
};

/// The list: keys that move through it choose the rows that they come to.
class ChangeList : public QListView {
 public:
  using QListView::QListView;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    QListView::keyPressEvent(event);
    for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp,
                          Qt::Key_PageDown, Qt::Key_Space}) {
      if (event->key() == key) emit activated(currentIndex());
    }
  }
};

ChangesDock::ChangesDock(QWidget* parent) : QDockWidget(tr("What Changed"), parent) {
  setObjectName("ChangesDock");
  setWidget(NewContent());
  const auto ask = [this] {
    if (!isFilling_) emit Asked();
  };
  connect(against_, &QComboBox::currentIndexChanged, this, ask);
  connect(race_, &QComboBox::currentIndexChanged, this, ask);
  connect(list_, &QListView::clicked, this, &ChangesDock::Row_Chosen);
  connect(list_, &QListView::activated, this, &ChangesDock::Row_Chosen);
  connect(copy_, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(text_); });
  connect(save_, &QPushButton::clicked, this, &ChangesDock::SaveAsked);
}

QWidget* ChangesDock::NewContent() {
  auto* content = new QWidget(this);
  against_ = new QComboBox(content);
  against_->setObjectName("ChangesAgainst");
  NameBox(*against_, tr("Year to compare with"));
  race_ = new QComboBox(content);
  race_->setObjectName("ChangesRace");
  NameBox(*race_, tr("Race whose changes are shown"));
  race_->addItem(tr("All races"));
  for (QComboBox* box : {against_, race_}) {
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  }
  summary_ = NewValue("ChangesSummary", content);
  summary_->setWordWrap(true);
  list_ = new ChangeList(content);
  list_->setObjectName("ChangesList");
  list_->setAccessibleName(tr("Changes"));
  list_->setWordWrap(true);
  list_->setResizeMode(QListView::Adjust);
  list_->setLayoutMode(QListView::Batched);
  list_->setAlternatingRowColors(true);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  model_ = new ChangeModel(list_);
  list_->setModel(model_);
  copy_ = NewButton("ChangesCopy", tr("&Copy"), content);
  save_ = NewButton("ChangesSave", tr("&Save ..."), content);
  auto* choices = new QFormLayout();
  choices->addRow(tr("Since:"), against_);
  choices->addRow(tr("Of:"), race_);
  auto* buttons = new QHBoxLayout();
  buttons->addWidget(summary_, 1);
  buttons->addWidget(copy_);
  buttons->addWidget(save_);
  auto* column = new QVBoxLayout(content);
  column->addLayout(choices);
  column->addWidget(list_, 1);
  column->addLayout(buttons);
  return content;
}

void ChangesDock::ShowYears(const std::vector<int>& earlier, int chosen) {
  const QScopedValueRollback filling(isFilling_, true);
  against_->clear();
  for (auto year = earlier.rbegin(); year != earlier.rend(); ++year) {
    against_->addItem(tr("Year %1").arg(*year), *year);
  }
  against_->setCurrentIndex(against_->findData(chosen));
  against_->setEnabled(against_->count() > 1);
}

void ChangesDock::ShowRaces(const std::vector<std::string>& races) {
  const QScopedValueRollback filling(isFilling_, true);
  const QVariant chosen = race_->currentData();
  while (race_->count() > 1) race_->removeItem(1);
  for (const std::string& race : races) race_->addItem(ToQString(race), ToQString(race));
  race_->setCurrentIndex(std::max(race_->findData(chosen), 0));
}

void ChangesDock::ShowChanges(const std::vector<ChangeRow>& rows, const QString& summary,
                              const QString& text) {
  const QScopedValueRollback filling(isFilling_, true);
  const int current = list_->currentIndex().row();
  const ChangeRow kept =
      current >= 0 ? model_->Rows.at(static_cast<std::size_t>(current)) : ChangeRow();
  if (model_->Rows != rows) {
    model_->Show(rows);
    const auto row = std::ranges::find(rows, kept);
    if (row != rows.end()) {
      list_->setCurrentIndex(model_->index(static_cast<int>(row - rows.begin())));
    }
  }
  summary_->setText(summary);
  text_ = text;
  copy_->setEnabled(!rows.empty());
  save_->setEnabled(!rows.empty());
}

int ChangesDock::Against() const { return against_->currentData().toInt(); }

std::string ChangesDock::Race() const { return ToText(race_->currentData().toString()); }

void ChangesDock::Row_Chosen(const QModelIndex& index) {
  if (!index.isValid()) return;
  emit PlanetChosen(model_->Rows.at(static_cast<std::size_t>(index.row())).Planet);
}

}  // namespace quorvane
