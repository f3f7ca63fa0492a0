INSERT INTO bookmarks VALUES
    (1, 0, 'Cooking', NULL, 1), (2, 1, 'Plum cake', 'https://cakes.example.org/plum?size=26&oven=fan', 1),
    (3, 0, 'Fähren', 'https://ferries.example.org/', 2);
