CREATE TABLE Calendar (ROWID INTEGER PRIMARY KEY, title TEXT, color TEXT);
CREATE TABLE CalendarItem (
    ROWID INTEGER PRIMARY KEY, summary TEXT, calendar_id INTEGER REFERENCES Calendar, start_date REAL, end_date REAL);
INSERT INTO Calendar VALUES (1, 'Home', '#007AFF');
