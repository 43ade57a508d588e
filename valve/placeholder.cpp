namespace valve {}
