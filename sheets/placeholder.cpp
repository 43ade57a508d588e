namespace sheets {}
