INSERT INTO handle VALUES (1, '+15550100', 'SMS'), (2, '+15550123', 'iMessage'), (3, 'orla@example.org', 'iMessage');
INSERT INTO chat VALUES (1, 'SMS;-;+15550100', NULL), (2, 'iMessage;-;orla@example.org', 'Orla');
INSERT INTO message VALUES
    (1, 1, 'Are you still coming on Saturday?', 501600000, 0, 1),
    (2, 1, 'Yes, with cake. Käse or plum?', 501600240, 1, 1),
    (3, 3, 'The ferry leaves at ten ⛴', 501686400, 0, 1),
    (4, 2, 'It''s the "blue" door, not the green one.', 501690000, 0, 0);
INSERT INTO chat_message_join VALUES (1, 1), (1, 2), (2, 3);
WITH RECURSIVE count (number) AS (SELECT 5 UNION ALL SELECT number + 1 FROM count WHERE number < 400)
INSERT INTO message SELECT number, number % 3 + 1, 'Message ' || number, 501700000 + number * 60, number % 2, 1 FROM count;
