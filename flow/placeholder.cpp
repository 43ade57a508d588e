namespace flow {}
