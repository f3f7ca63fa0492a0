CREATE TABLE bookmarks (id INTEGER PRIMARY KEY, parent INTEGER, title TEXT, url TEXT, order_index INTEGER);
INSERT INTO bookmarks VALUES (0, NULL, 'Root', NULL, 0);
