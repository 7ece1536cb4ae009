#include "ui/search_help.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "screens/planet_searches.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr QSize kFirstSize(760, 620);
constexpr int kQueryWidth = 250;

QString ValueNames() {
  QStringList names;
  for (const std::string_view name : kMeasureNames) names << ToQString(name);
  return names.join(", ");
}

}  // namespace

SearchHelp::SearchHelp(QWidget* parent) : QDialog(parent) {
  setObjectName("SearchHelp");
  setWindowTitle(tr("How to Search for Planets"));
  auto* column = new QVBoxLayout(this);
  const auto paragraph = [&](const char* name, const QString& text) {
    QLabel* label = NewCaption(text, this);
    label->setObjectName(name);
    label->setWordWrap(true);
    column->addWidget(label);
  };
  paragraph(
      "SearchHelpWords",
      tr("A word finds planets by their names. Words beside each other must all hold; \"or\", "
         "\"not\" and brackets join them otherwise. Flags are mine, owned, base, gate, "
         "unexplored and changed."));
  paragraph("SearchHelpValues",
            tr("Values are compared by =, !=, <, <=, > and >=: %1. iron, bora and germ are "
               "concentrations, siron, sbora and sgerm lie on the surface, near is the way to the "
               "nearest own planet, dist the one to the selected planet.")
                .arg(ValueNames()));
  column->addWidget(NewHeading(
      tr("Examples, with names of the example games; a double click or Enter takes one over"),
      this));
  FillExamples();
  column->addWidget(examples_, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(kFirstSize.boundedTo(RoomOnScreen(*this)));
}

void SearchHelp::FillExamples() {
  const auto examples = SearchExamples();
  examples_ = new QTableWidget(static_cast<int>(examples.size()), 2, this);
  examples_->setObjectName("SearchExamples");
  examples_->setAccessibleName(tr("Examples"));
  examples_->setHorizontalHeaderLabels({tr("Search"), tr("Finds")});
  examples_->verticalHeader()->hide();
  examples_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  examples_->horizontalHeader()->resizeSection(0, kQueryWidth);
  examples_->horizontalHeader()->setStretchLastSection(true);
  examples_->setShowGrid(false);
  examples_->setAlternatingRowColors(true);
  examples_->setSelectionBehavior(QAbstractItemView::SelectRows);
  examples_->setSelectionMode(QAbstractItemView::SingleSelection);
  examples_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  examples_->setTabKeyNavigation(false);
  int row = 0;
  for (const auto& [query, meaning] : examples) {
    examples_->setItem(row, 0, new QTableWidgetItem(ToQString(query)));
    examples_->setItem(row++, 1, new QTableWidgetItem(ToQString(meaning)));
  }
  examples_->selectRow(0);
  connect(examples_, &QTableWidget::cellDoubleClicked, this, &SearchHelp::Choose);
}

void SearchHelp::Choose(int row) { emit Chosen(examples_->item(row, 0)->text()); }

void SearchHelp::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter || !examples_->hasFocus()) return QDialog::keyPressEvent(event);
  Choose(examples_->currentRow());
}

}  // namespace quorvane
