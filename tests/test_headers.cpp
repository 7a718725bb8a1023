// Its headers are those that all tests share; it has nothing of its own.
