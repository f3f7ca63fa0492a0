INSERT INTO Calendar VALUES (2, 'Work', '#FF9500');
INSERT INTO CalendarItem VALUES
    (1, 'Dentist', 1, 501840000, 501843600), (2, 'Ferry to Larkham', 1, 501926400, 501930000),
    (3, 'Jürgen''s leaving do', 2, 502012800, 502020000);
