namespace forms {}
