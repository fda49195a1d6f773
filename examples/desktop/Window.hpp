#pragma once

#include "Session.hpp"

#include <QtWidgets>

/// A window on the books of a file. Without a name, they are an example, which is not saved.
class Window : public QMainWindow
{
  Q_DECLARE_TR_FUNCTIONS(Window)

public:
  /// \throws UserError if the file cannot be read, or holds something else
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
    view_->setEditTriggers(QTreeView::NoEditTriggers);
    view_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { run([this] { enableCommands(); }); });

    auto const always = [] { return true; };
    auto const isSound = [this] { return session_.books().problems.isEmpty(); };
    auto const canUndo = [this] { return session_.canUndo(); };
    auto const canRedo = [this] { return session_.canRedo(); };
    auto const hasBank = [this] { return bank() != nullptr; };
    auto const hasOpenBank = [this] { return bank() && !bank()->isClosed(); };
    auto const hasClosedBank = [this] { return bank() && bank()->isClosed(); };
    auto const hasAccount = [this] { return account() != AccountNumber(); };
    auto* menu = menuBar()->addMenu(tr("&File"));
    addCommand(menu, tr("&Reload"), QKeySequence::Refresh, always, [this] { session_.reload(); });
    addCommand(menu, tr("&Quit"), QKeySequence::Quit, always, [this] { close(); });
    menu = menuBar()->addMenu(tr("&Edit"));
    addCommand(menu, tr("&Undo"), QKeySequence::Undo, canUndo, [this] { session_.undo(); });
    addCommand(menu, tr("&Redo"), QKeySequence::Redo, canRedo, [this] { session_.redo(); });
    addCommand(menu, tr("Re&move"), QKeySequence::Delete, hasBank, [this] { remove(); });
    menu = menuBar()->addMenu(tr("&Bank"));
    addCommand(menu, tr("&New…"), QKeySequence::New, isSound, [this] { nameBank({}); });
    addCommand(menu, tr("&Rename…"), Qt::Key_F2, hasOpenBank, [this] { nameBank(bank()->name()); });
    addCommand(menu, tr("&Close"), {}, hasOpenBank, [this] { change(&BankMap::close); });
    addCommand(menu, tr("Re&open"), {}, hasClosedBank, [this] { change(&BankMap::open); });
    menu = menuBar()->addMenu(tr("&Account"));
    addCommand(menu, tr("&Add…"), Qt::Key_Insert, hasBank, [this] { addAccount(); });
    addCommand(menu, tr("Re&concile…"), Qt::CTRL | Qt::Key_R, hasAccount,
               [this] { reconcileAccount(); });
    setWindowTitle(file.isEmpty() ? tr("Example, which is not saved") : QFileInfo(file).fileName());
    resize(640, 480);
    refresh();
    view_->setCurrentIndex(model_.index(0, 0));
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

  // Calls a function of the registry with the selected bank.
  void change(void (BankMap::*call)(BankName const&))
  {
    session_.change([&](Books& books) { (books.banks.*call)(bank()->name()); });
  }

  // Removes the selected account, or else the selected bank.
  void remove()
  {
    session_.change([this](Books& books) {
      auto const& name = bank()->name();
      account() == AccountNumber() ? books.banks.remove(name) : books.banks.remove(name, account());
    });
  }

  // Asks for the name of a bank, which is a new one if it has none yet.
  void nameBank(BankName const from)
  {
    auto* const field = new QLineEdit(from.institution());
    field->selectAll();
    ask(from.isEmpty() ? tr("New Bank") : tr("Rename Bank"), {{tr("&Name:"), field}}, [&] {
      BankName const to(field->text().trimmed());
      if (to != from) { // or the registry would refuse it
        session_.change([&](Books& books) {
          from.isEmpty() ? books.banks.add(Bank(to, {}, false)) : books.banks.rename(from, to);
        });
      }
      return true;
    });
  }

  void addAccount()
  {
    auto* const field = new QLineEdit;
    auto* const box = new QComboBox;
    using enum BankAccountTypes;
    for (auto const kind : {Chequeing, CreditCard, Loan, Savings, Goal}) {
      box->addItem(presentationText(kind), QVariant::fromValue(kind));
    }
    ask(tr("Add Account"), {{tr("&Number:"), field}, {tr("&Kind:"), box}}, [&] {
      auto const number = toAccountNumber(field->text());
      auto const kind = box->currentData().value<BankAccountTypes>();
      auto const& held = bank()->accounts();
      auto const question = tr("The bank holds account %1 already. Change its kind to %2?")
                                .arg(presentationText(number), presentationText(kind));
      if (held.contains(number) && held.at(number) != kind &&
          QMessageBox::question(this, windowTitle(), question) != QMessageBox::Yes) {
        return false;
      }
      session_.change([&](Books& books) { books.banks.add(bank()->name(), number, kind); });
      return true;
    });
  }

  void reconcileAccount()
  {
    auto const last = session_.books().last(account()).balance.currency().isoCode();
    auto* const amount = new QLineEdit;
    auto* const currency =
        new QLineEdit(last.isEmpty() ? QLocale().currencySymbol(QLocale::CurrencyIsoCode) : last);
    auto* const date = new QLineEdit(orv::foundation::presentationText(QDate::currentDate()));
    ask(tr("Reconcile Account %1").arg(presentationText(account())),
        {{tr("&Balance:"), amount}, {tr("&Currency:"), currency}, {tr("&Date:"), date}}, [&] {
          auto const balance = toMoney(amount->text(), toCurrency(currency->text().toUpper()));
          auto const day = toDate(date->text());
          require(day <= QDate::currentDate(), tr("The date is in the future."));
          session_.change([&](Books& books) { reconcile(books, account(), {balance, day}); });
          return true;
        });
  }

  // Asks with a form, which stays until what is in it is accepted or the user gives up.
  void ask(QString const& title, std::vector<std::pair<QString, QWidget*>> const& fields,
           auto const& accept)
  {
    QDialog dialog(this);
    dialog.setWindowTitle(title);
    dialog.setMinimumWidth(400); // shows the title
    QFormLayout form(&dialog);
    for (auto const& [label, field] : fields) {
      form.addRow(label, field);
    }
    QDialogButtonBox buttons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form.addRow(&buttons);
    connect(&buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    connect(&buttons, &QDialogButtonBox::accepted, &dialog, [&] {
      run([&] {
        if (accept()) {
          dialog.accept();
        }
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

  // Brings the rows in line with the books. That of a bank stays as long as the bank has its name,
  // so that what is expanded and selected does, too. A bank that is new is selected.
  void refresh()
  {
    auto const& books = session_.books();
    auto const selectedAccount = account();
    QStringList names;
    for (auto const& name : books.banks.names()) {
      names += name.institution();
    }
    std::stable_sort(names.begin(), names.end(), QCollator()); // as the user's language does
    for (auto* const row : model_.findItems({}, Qt::MatchContains)) {
      if (!names.contains(row->text())) {
        model_.removeRow(row->row());
      }
    }
    for (int place = 0; place < names.size(); ++place) {
      auto* row = model_.item(place);
      if (row == nullptr || row->text() != names[place]) {
        row = new QStandardItem(names[place]);
        model_.insertRow(place, {row, new QStandardItem});
        view_->expand(row->index());
        view_->setCurrentIndex(row->index());
      }
      row->removeRows(0, row->rowCount());
      auto const& bank = books.banks.bank(BankName(row->text()));
      model_.item(place, 1)->setText(bank.isClosed() ? tr("closed") : QString());
      for (auto const& [number, kind] : bank.accounts()) {
        auto const [balance, date] = books.last(number);
        auto* const cell = new QStandardItem(presentationText(number));
        auto* const amount = new QStandardItem(presentationText(balance));
        amount->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        row->appendRow({cell, new QStandardItem(presentationText(kind)), amount,
                        new QStandardItem(orv::foundation::presentationText(date))});
        if (number == selectedAccount) {
          view_->setCurrentIndex(cell->index());
        }
      }
    }
    problems_->setVisible(!books.problems.isEmpty());
    problems_->setPlainText(
        tr("Nothing can be changed, or these rows, which cannot be read, would be lost:") + u'\n' +
        books.problems.join(u'\n'));
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
    return session_.books().problems.isEmpty() ? rows.value(0) : QModelIndex();
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
