#pragma once

#include "Store.hpp"

/// The books of a file, which are saved with each change, and what can be undone and redone.
class Session
{
public:
  explicit Session(QString const& file) : store_(file) { reload(); }

  /// Returns the books. A change ends each reference and iterator into them.
  [[nodiscard]] Books const& books() const { return history_[now_]; }

  [[nodiscard]] bool canUndo() const { return now_ > 0; }
  [[nodiscard]] bool canRedo() const { return now_ + 1 < history_.size(); }
  void undo() { goTo(now_ - 1); }
  void redo() { goTo(now_ + 1); }

  /// Changes a copy of the books, and saves it if it differs. If `edit` or saving throws, books and
  /// file stay as they are. The balance of an account that no bank holds any longer goes.
  void change(auto const& edit)
  {
    auto changed = books();
    edit(changed);
    std::erase_if(changed.balances,
                  [&](auto const& entry) { return !changed.banks.find(entry.first); });
    if (changed != books()) {
      history_.reserve(history_.size() + 1); // nothing may throw once the books are saved
      store_.save(changed);
      history_.erase(history_.begin() + ++now_, history_.end()); // what could be redone
      history_.push_back(std::move(changed));
    }
  }

  /// Reads the file again. Nothing can be undone then.
  void reload()
  {
    history_ = {store_.load()};
    now_ = 0;
  }

private:
  void goTo(qsizetype step)
  {
    store_.save(history_[step]);
    now_ = step;
  }

  Store store_;
  QList<Books> history_{};
  qsizetype now_ = 0; // the place of the books in it
};
