#!/usr/bin/python3
"""Tests the four navigation menus in a real browser, as a visitor uses them: drop_menus.py PROGRAM

PROGRAM prints the menu of a keyword. Every address that the browser requests is answered on loopback.
"""
import http.server
import itertools
import os
import subprocess
import sys
import tempfile
import threading
import unittest

from selenium.webdriver import Chrome, ChromeOptions
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.expected_conditions import url_to_be
from selenium.webdriver.support.ui import Select, WebDriverWait

PROGRAM = os.path.abspath(sys.argv.pop(1))
SAMPLE = "http://www.example.com/"
PAGE = "http://author.example/page.htm"


class Web(http.server.BaseHTTPRequestHandler):
    """Answers for every site: with the page to test, and at any other address with an empty one."""
    page = b""
    visits = []

    def do_GET(self):
        self.send_response(200)
        self.send_header("Content-Type", "text/html")
        self.end_headers()
        self.wfile.write(self.page if self.path == "/page.htm" else b"<p>arrived")
        if self.path != "/favicon.ico":
            self.visits.append(self.path)

    def log_message(self, *_):
        pass


def start_browser(home, port):
    options = ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    for word in ("headless", "no-sandbox", "disable-gpu", "disable-dev-shm-usage", "disable-quic",
                 "no-first-run", "disable-background-networking", "disable-component-update",
                 "disable-sync", "disable-features=HttpsUpgrades", "no-proxy-server",
                 f"host-resolver-rules=MAP * 127.0.0.1:{port}"):
        options.add_argument("--" + word)
    options.ignore_local_proxy_environment_variables()
    service = Service("/usr/bin/chromedriver", env=os.environ | {"HOME": home})
    return Chrome(options=options, service=service)


class DropMenus(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        home = cls.enterClassContext(tempfile.TemporaryDirectory())
        server = cls.enterClassContext(http.server.ThreadingHTTPServer(("127.0.0.1", 0), Web))
        threading.Thread(target=server.serve_forever, daemon=True).start()
        cls.addClassCleanup(server.shutdown)
        cls.browser = cls.enterClassContext(start_browser(home, server.server_port))

    def open(self, keyword):
        """Opens the menu of the keyword with a number behind each of its addresses, from 1 on."""
        menu = subprocess.run([PROGRAM, keyword], capture_output=True, check=True, text=True).stdout
        numbers = itertools.count(1)
        first, *rest = menu.split(SAMPLE)
        numbered = first + "".join(f"{SAMPLE}{next(numbers)}{text}" for text in rest)
        Web.page = f"<html><body>{numbered}</body></html>".encode()
        self.browser.get(PAGE)
        Web.visits.clear()
        self.lists = [Select(each) for each in self.browser.find_elements(By.TAG_NAME, "select")]

    def go(self):
        self.browser.find_element(By.CSS_SELECTOR, "[value='Go!']").click()

    def expect_visit(self, *numbers):
        """Nothing was asked for since the page was opened but these addresses, and the last is shown."""
        address = f"{SAMPLE}{numbers[-1]}"
        WebDriverWait(self.browser, 10).until(url_to_be(address), f"never at {address}")
        self.assertEqual(Web.visits, [f"/{number}" for number in numbers])

    def test_a_choice_goes_there_at_once_and_the_heading_nowhere(self):
        self.open("drop")
        self.lists[0].select_by_visible_text("KestrelSites 2")
        self.expect_visit(2)
        self.browser.back()
        self.lists = [Select(self.browser.find_element(By.TAG_NAME, "select"))]
        self.assertEqual(self.lists[0].first_selected_option.text, "KestrelSites 2")
        self.lists[0].select_by_index(0)
        self.lists[0].select_by_visible_text("KestrelSites 3")
        self.expect_visit(2, 3)

    def test_the_button_goes_to_the_choice_and_with_the_heading_nowhere(self):
        self.open("goBtn")
        self.go()
        self.lists[0].select_by_visible_text("KestrelSites 3")
        self.assertEqual(self.browser.current_url, PAGE)
        self.go()
        self.expect_visit(3)

    def test_a_new_window_opens_once_and_only_if_wished(self):
        self.open("Wnd")
        self.lists[0].select_by_visible_text("Kestrel Sites Link 2")
        self.go()
        self.expect_visit(2)
        self.open("Wnd")
        page = self.browser.current_window_handle
        self.browser.find_element(By.NAME, "optWnd").click()
        self.go()
        WebDriverWait(self.browser, 10).until(lambda browser: len(browser.window_handles) == 2)
        self.browser.switch_to.window(self.browser.window_handles[1])
        self.expect_visit(1)
        self.browser.close()
        self.browser.switch_to.window(page)
        self.assertEqual(self.browser.current_url, PAGE)
        self.lists[0].select_by_visible_text("Kestrel Sites Link 3")
        self.go()
        self.expect_visit(1, 3)

    def test_the_second_list_follows_the_first(self):
        numbers = dict(zip("1a 1b 1c 2a 2b 2c 3a 3b 3c 3d".split(), itertools.count(4)))
        for order, choice in (("", "1c"), ("C", "3d"), ("CB", "2b"), ("BCA", "1a")):
            self.open("dCbo")
            for group in order:
                self.lists[0].select_by_visible_text(f"Group {group}")
            labels = [option.text.removeprefix("Kestrel Sites_") for option in self.lists[1].options]
            self.assertEqual(labels, [label for label in numbers if label[0] == choice[0]])
            self.assertTrue(self.lists[1].options[0].is_selected())
            self.lists[1].select_by_visible_text(f"Kestrel Sites_{choice}")
            self.go()
            self.expect_visit(numbers[choice] if order else numbers[choice] - 3)


unittest.main(verbosity=2)
