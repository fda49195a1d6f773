#include "Window.hpp"

#include "Session.hpp"

#include <QtWidgets>

namespace {

class Item : public QStandardItem
{
public:
  // Banks are in the order of the user's language, accounts in that of their numbers.
  bool operator<(QStandardItem const& other) const override
  {
    static QCollator const collator;
    return parent() ? text().toUInt() < other.text().toUInt() : collator(text(), other.text());
  }
};

// Brings the rows beneath an item in line with these, which are known by their first cells, and returns their
// items. A row that stays keeps its indexes, and one that is new takes over those of one that is gone, as when
// a bank has been renamed: so a view keeps what is selected and expanded.
std::map<QString, QStandardItem*> update(QStandardItem& parent,
                                         std::map<QString, QStringList> const& rows)
{
  std::map<QString, QStandardItem*> items;
  QList<QStandardItem*> gone;
  for (int row = 0; row < parent.rowCount(); ++row) {
    auto* const item = parent.child(row);
    rows.contains(item->text()) ? items[item->text()] = item : gone.emplace_back(item);
  }
  for (auto const& [text, cells] : rows) {
    auto*& item = items[text];
    if (item == nullptr && gone.isEmpty()) {
      parent.appendRow({new Item, new Item, new Item, new Item});
      gone += parent.child(parent.rowCount() - 1);
      parent.child(parent.rowCount() - 1, 2)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (item == nullptr) {
      item = gone.takeLast();
      item->setText(text);
    }
    for (int column = 1; column <= cells.size(); ++column) {
      parent.child(item->row(), column)->setText(cells[column - 1]);
    }
  }
  for (auto* const item : gone) {
    parent.removeRow(item->row());
  }
  return items;
}

// Shows the banks, with their accounts beneath.
void update(QStandardItemModel& model, Books const& books)
{
  std::map<QString, QStringList> bankRows;
  for (auto const& [name, bank] : books.banks) {
    bankRows[presentationText(name)] = {bank.isClosed() ? Books::tr("closed") : QString()};
  }
  for (auto const& [text, item] : update(*model.invisibleRootItem(), bankRows)) {
    std::map<QString, QStringList> rows;
    for (auto const& [number, kind] : books.banks.bank(BankName(text)).accounts()) {
      auto& cells = rows[presentationText(number)] = {presentationText(kind), {}, {}};
      if (auto const last = books.balances.find(number); last != books.balances.end()) {
        cells[1] = presentationText(last->second.balance);
        cells[2] = orv::foundation::presentationText(last->second.occurredOn);
      }
    }
    update(*item, rows);
  }
  model.sort(0);
}

class Window : public QMainWindow
{
  Q_DECLARE_TR_FUNCTIONS(Window)

public:
  explicit Window(QString const& file) : session_(file)
  {
    auto* const splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(view_);
    splitter->addWidget(problems_);
    setCentralWidget(splitter);
    problems_->setReadOnly(true);
    model_.setHorizontalHeaderLabels(
        {tr("Bank, account"), tr("Kind"), tr("Balance"), tr("Reconciled on")});
    view_->setModel(&model_);
    view_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    view_->setEditTriggers(QTreeView::NoEditTriggers);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { run([this] { enableCommands(); }); });

    auto const always = [] { return true; };
    auto const isSound = [this] { return session_.problems().isEmpty(); };
    auto const canUndo = [this] { return session_.canUndo(); };
    auto const canRedo = [this] { return session_.canRedo(); };
    auto const hasOpenBank = [this] { return bank() && !bank()->isClosed(); };
    auto const hasClosedBank = [this] { return bank() && bank()->isClosed(); };
    auto const hasBank = [this] { return bank() != nullptr; };
    auto const hasBankAlone = [this] { return bank() && account() == AccountNumber(); };
    auto const hasAccount = [this] { return account() != AccountNumber(); };
    auto* menu = menuBar()->addMenu(tr("&File"));
    addCommand(menu, tr("&Reload"), QKeySequence::Refresh, always, [this] { session_.reload(); });
    addCommand(menu, tr("&Quit"), QKeySequence::Quit, always, [this] { close(); });
    menu = menuBar()->addMenu(tr("&Edit"));
    addCommand(menu, tr("&Undo"), QKeySequence::Undo, canUndo, [this] { session_.undo(); });
    addCommand(menu, tr("&Redo"), QKeySequence::Redo, canRedo, [this] { session_.redo(); });
    menu = menuBar()->addMenu(tr("&Bank"));
    addCommand(menu, tr("&New…"), QKeySequence::New, isSound, [this] { addBank(); });
    addCommand(menu, tr("&Rename…"), Qt::Key_F2, hasOpenBank, [this] { renameBank(); });
    addCommand(menu, tr("&Close"), {}, hasOpenBank, [this] { change(&BankMap::close); });
    addCommand(menu, tr("Re&open"), {}, hasClosedBank, [this] { change(&BankMap::open); });
    addCommand(menu, tr("Re&move Bank"), QKeySequence::Delete, hasBankAlone,
               [this] { change(&BankMap::remove); });
    menu = menuBar()->addMenu(tr("&Account"));
    addCommand(menu, tr("&Add…"), Qt::Key_Insert, hasBank, [this] { addAccount(); });
    addCommand(menu, tr("Re&concile…"), Qt::CTRL | Qt::Key_R, hasAccount,
               [this] { reconcileAccount(); });
    addCommand(menu, tr("Re&move Account"), QKeySequence::Delete, hasAccount, [this] {
      auto const name = bank()->name();
      session_.change([&](Books& books) { books.banks.remove(name, account()); });
    });
    setWindowTitle(file.isEmpty() ? tr("Example, which is not kept") : QFileInfo(file).fileName());
    resize(640, 480);
    refresh();
    view_->expandAll();
  }

private:
  void addCommand(QMenu* menu, QString const& text, QKeySequence const& keys,
                  auto const& isPossible, auto const& carryOut)
  {
    auto* const action = menu->addAction(text, keys, this, [this, carryOut] {
      run([&] {
        carryOut();
        refresh();
      });
    });
    view_->addAction(action); // to its context menu
    commands_.emplace_back(action, isPossible);
  }

  // Calls a function of the registry with the selected bank, which it may take for good.
  void change(void (BankMap::*call)(BankName const&))
  {
    auto const name = bank()->name();
    session_.change([&](Books& books) { (books.banks.*call)(name); });
  }

  void addBank()
  {
    auto* const field = new QLineEdit;
    ask(tr("New Bank"), {{tr("&Name:"), field}}, [&] {
      BankName const name(field->text().trimmed());
      session_.change([&](Books& books) { books.banks.add(Bank(name, {}, false)); });
      refresh();
      view_->setCurrentIndex(model_.findItems(presentationText(name)).first()->index());
    });
  }

  void renameBank()
  {
    auto const from = bank()->name();
    auto* const field = new QLineEdit(presentationText(from));
    field->selectAll();
    ask(tr("Rename Bank"), {{tr("&Name:"), field}}, [&] {
      BankName const to(field->text().trimmed());
      if (to != from) { // or the registry would refuse it
        session_.change([&](Books& books) { books.banks.rename(from, to); });
      }
    });
  }

  void addAccount()
  {
    auto const bank = *this->bank();
    auto* const field = new QLineEdit;
    auto* const box = new QComboBox;
    for (auto const kind :
         {BankAccountTypes::Chequeing, BankAccountTypes::CreditCard, BankAccountTypes::Loan,
          BankAccountTypes::Savings, BankAccountTypes::Goal}) {
      box->addItem(presentationText(kind), QVariant::fromValue(kind));
    }
    ask(tr("Add Account"), {{tr("&Number:"), field}, {tr("&Kind:"), box}}, [&] {
      auto const number = toAccountNumber(field->text());
      auto const kind = box->currentData().value<BankAccountTypes>();
      auto const held = bank.accounts().find(number);
      if (held != bank.accounts().end()) { // whose kind add would change
        auto const question = tr("The bank holds account %1 as %2. Change it to %3?");
        auto const answer = QMessageBox::question(this, windowTitle(),
                                                  question.arg(presentationText(number),
                                                               presentationText(held->second),
                                                               presentationText(kind)));
        if (answer != QMessageBox::Yes) {
          return;
        }
      }
      session_.change([&](Books& books) { books.banks.add(bank.name(), number, kind); });
      refresh();
      view_->expand(model_.findItems(presentationText(bank.name())).first()->index());
    });
  }

  void reconcileAccount()
  {
    auto const number = account();
    auto const last = session_.books().balances.find(number);
    auto const code = last == session_.books().balances.end()
                          ? QLocale().currencySymbol(QLocale::CurrencyIsoCode)
                          : last->second.balance.currency().isoCode();
    auto* const amount = new QLineEdit;
    auto* const currency = new QLineEdit(code);
    auto* const date = new QLineEdit(orv::foundation::presentationText(QDate::currentDate()));
    ask(tr("Reconcile Account %1").arg(presentationText(number)),
        {{tr("&Balance:"), amount}, {tr("&Currency:"), currency}, {tr("&Date:"), date}}, [&] {
          auto const balance = toMoney(amount->text(), toCurrency(currency->text().toUpper()));
          session_.change([&](Books& books) {
            reconcile(books, number, {balance, toDate(date->text())});
          });
        });
  }

  // Asks with a form, which stays until what is in it is accepted or the user gives up.
  void ask(QString const& title, std::vector<std::pair<QString, QWidget*>> const& fields,
           auto const& accept)
  {
    QDialog dialog(this);
    dialog.setWindowTitle(title);
    QFormLayout form(&dialog);
    for (auto const& [label, field] : fields) {
      form.addRow(label, field);
    }
    QDialogButtonBox buttons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form.addRow(&buttons);
    connect(&buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    connect(&buttons, &QDialogButtonBox::accepted, &dialog, [&] {
      run([&] {
        accept();
        dialog.accept();
      });
    });
    dialog.exec();
  }

  // Does what a slot does, and shows the user why it cannot be done: no exception may leave a slot.
  void run(auto const& work)
  {
    auto* const parent = QApplication::activeWindow();
    try {
      work();
    } catch (UserError const& error) {
      QMessageBox::warning(parent, windowTitle(), QString::fromUtf8(error.what()));
    } catch (std::exception const& error) {
      QMessageBox::critical(parent, windowTitle(),
                            tr("The program has a fault: %1").arg(QString::fromUtf8(error.what())));
    }
  }

  void refresh()
  {
    ::update(model_, session_.books());
    problems_->setVisible(!session_.problems().isEmpty());
    problems_->setPlainText(
        tr("Nothing can be changed, or these rows, which cannot be read, would be lost:") + u'\n' +
        session_.problems().join(u'\n'));
    enableCommands();
  }

  void enableCommands()
  {
    for (auto const& [action, isPossible] : commands_) {
      action->setEnabled(isPossible());
    }
  }

  // What is selected to be changed: nothing if the file has problems.
  QModelIndex selected() const
  {
    auto const rows = view_->selectionModel()->selectedRows();
    return session_.problems().isEmpty() ? rows.value(0) : QModelIndex();
  }

  // The selected bank, or that of the selected account; until the next change.
  Bank const* bank() const
  {
    auto const row = selected().parent().isValid() ? selected().parent() : selected();
    auto const& banks = session_.books().banks;
    auto const name = row.isValid() ? BankName(row.data().toString()) : BankName();
    return banks.hasBank(name) ? &banks.bank(name) : nullptr;
  }

  AccountNumber account() const
  {
    return AccountNumber(selected().parent().isValid() ? selected().data().toUInt() : 0);
  }

  Session session_;
  QStandardItemModel model_{};
  QTreeView* view_ = new QTreeView;
  QTextEdit* problems_ = new QTextEdit;
  std::vector<std::pair<QAction*, std::function<bool()>>> commands_{};
};

} // namespace

std::unique_ptr<QMainWindow> newWindow(QString const& file)
{
  return std::make_unique<Window>(file);
}
