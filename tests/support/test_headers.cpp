// The headers that all tests share are read once, for this file.
