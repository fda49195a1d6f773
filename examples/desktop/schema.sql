BEGIN IMMEDIATE;
CREATE TABLE IF NOT EXISTS banks (
  id INTEGER PRIMARY KEY,
  name TEXT NOT NULL UNIQUE,
  closed INTEGER NOT NULL CHECK (closed IN (0, 1))
);
CREATE TABLE IF NOT EXISTS accounts (
  number INTEGER PRIMARY KEY,
  bank INTEGER NOT NULL REFERENCES banks,
  kind TEXT NOT NULL, -- untranslated
  -- What the bank reported last, or NULL.
  currency TEXT, -- ISO 4217
  minor_units INTEGER,
  occurred_on TEXT, -- ISO 8601
  CHECK ((currency IS NULL) = (minor_units IS NULL) AND (currency IS NULL) = (occurred_on IS NULL))
);
CREATE INDEX IF NOT EXISTS accounts_of_bank ON accounts (bank);
PRAGMA user_version = 1;
COMMIT;
