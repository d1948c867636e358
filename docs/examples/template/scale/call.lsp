(tavrinwnd "shelf" 1000.0 1)
