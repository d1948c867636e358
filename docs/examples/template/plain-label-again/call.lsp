(tavrinwnd "shelf" 1.0 1)
