# The pages the browser tests visit, served over HTTPS on 127.0.0.1 with a throwaway certificate.
# github.com and www.youtube.com are on the browsers' HSTS lists, so they must be HTTPS; the browser
# is told to map them here and to accept the certificate. Source after desktop-session.sh, then call
# serve_pages; it sets $pages_port. serve_plain_pages serves the same over plain HTTP, where no
# name needs mapping, and sets $plain_port.

serve_pages() {
    local site="$e2e_root/site"
    mkdir -p "$site"
    cat >"$site/issues.html" <<'PAGE'
<!doctype html><meta charset="utf-8"><title>larkspan/tracker: Issues</title><h1>Issues</h1>
PAGE
    cat >"$site/watch.html" <<'PAGE'
<!doctype html><meta charset="utf-8"><title>Rust tutorial for beginners - YouTube</title><h1>Video</h1>
PAGE
    openssl req -x509 -newkey rsa:2048 -nodes -days 1 -subj /CN=github.com -keyout "$site/key.pem" \
        -out "$site/cert.pem" >>"$e2e_root/desktop.log" 2>&1 || fail "no certificate"
    cat >"$e2e_root/serve-pages.py" <<'SERVER'
import functools, http.server, ssl, sys
site, port_file = sys.argv[1], sys.argv[2]
handler = functools.partial(http.server.SimpleHTTPRequestHandler, directory=site)
server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
context.load_cert_chain(f"{site}/cert.pem", f"{site}/key.pem")
server.socket = context.wrap_socket(server.socket, server_side=True)
with open(port_file, "w") as f:
    f.write(str(server.server_address[1]))
server.serve_forever()
SERVER
    background python3 "$e2e_root/serve-pages.py" "$site" "$e2e_root/pages-port"
    wait_until 10 grep -q . "$e2e_root/pages-port" || fail "the page server did not start"
    pages_port=$(cat "$e2e_root/pages-port")
}

serve_plain_pages() {
    background python3 -u -m http.server --bind 127.0.0.1 --directory "$e2e_root/site" 0
    wait_until 10 grep -q 'port [0-9]*' "$e2e_root/desktop.log" || fail "the plain page server did not start"
    plain_port=$(grep -o 'port [0-9]*' "$e2e_root/desktop.log" | head -n 1 | cut -d' ' -f2)
}
