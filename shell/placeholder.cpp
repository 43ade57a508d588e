namespace shell {}
