#pragma once

#include "Store.hpp"

/// The books of a file, which are saved with each change, and what can be undone and redone.
class Session
{
  Q_DECLARE_TR_FUNCTIONS(Session)

public:
  explicit Session(QString const& file) : store_(file) { reload(); }

  /// Returns the books. A change moves others here, which ends each reference and iterator into them.
  [[nodiscard]] Books const& books() const { return books_; }

  /// Returns what is wrong with rows of the file. If anything is, nothing can be changed.
  [[nodiscard]] QStringList const& problems() const { return problems_; }

  [[nodiscard]] bool canUndo() const { return !undo_.empty(); }
  [[nodiscard]] bool canRedo() const { return !redo_.empty(); }
  void undo() { step(undo_, redo_); }
  void redo() { step(redo_, undo_); }

  /// Changes the books and saves them. If `edit` or saving throws, books and file stay as they are.
  void change(auto const& edit)
  {
    auto changed = books_;
    edit(changed);
    dropLostBalances(changed);
    replace(std::move(changed), undo_);
    redo_.clear();
  }

  /// Reads the file again. Nothing can be undone then.
  void reload()
  {
    QStringList problems;
    books_ = store_.load(problems);
    problems_ = problems;
    undo_.clear();
    redo_.clear();
  }

private:
  // Saves the next books, and then moves them here and those before into `history`.
  void replace(Books&& next, std::vector<Books>& history)
  {
    require(problems_.isEmpty(), tr("Rows of the file that cannot be read would be lost."));
    history.reserve(history.size() + 1); // nothing may throw once the books are saved
    store_.save(next);
    history.push_back(std::exchange(books_, std::move(next)));
  }

  void step(std::vector<Books>& from, std::vector<Books>& to)
  {
    replace(std::move(from.back()), to);
    from.pop_back();
  }

  Store store_;
  Books books_{};
  QStringList problems_{};
  std::vector<Books> undo_{};
  std::vector<Books> redo_{};
};
