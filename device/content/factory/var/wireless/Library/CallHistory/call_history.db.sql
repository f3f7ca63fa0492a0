CREATE TABLE call (
    ROWID INTEGER PRIMARY KEY, address TEXT, date INTEGER, duration INTEGER, flags INTEGER, country_code TEXT);
CREATE INDEX call_date ON call (date);
