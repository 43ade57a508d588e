namespace piping {}
