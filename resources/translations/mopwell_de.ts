<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AboutModel</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Version %1 (%2)</translation>
    </message>
</context>
<context>
    <name>AboutView</name>
    <message>
        <source>About Mopwell</source>
        <translation>Über Mopwell</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>reclaimed all-time</source>
        <translation>insgesamt freigegeben</translation>
    </message>
    <message>
        <source>Recent cleanups</source>
        <translation>Letzte Bereinigungen</translation>
    </message>
    <message>
        <source>Open Trash</source>
        <translation>Papierkorb öffnen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>No cleanups yet.</source>
        <translation>Noch keine Bereinigungen.</translation>
    </message>
</context>
<context>
    <name>ActivationStep</name>
    <message>
        <source>You&apos;re all set</source>
        <translation>Alles bereit</translation>
    </message>
    <message>
        <source>Sizing up what you can clean…</source>
        <translation>Ermittle, was sich bereinigen lässt …</translation>
    </message>
    <message>
        <source>Ready to free up</source>
        <translation>Bereit zum Freigeben</translation>
    </message>
</context>
<context>
    <name>AdminShell</name>
    <message>
        <source>Authorization failed.</source>
        <translation>Autorisierung fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Administrator rights can&apos;t be asked for: pkexec isn&apos;t installed.</source>
        <translation>Administratorrechte können nicht angefragt werden: pkexec ist nicht installiert.</translation>
    </message>
</context>
<context>
    <name>AlertDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Auto-cleanup freed %1</source>
        <translation>Automatische Bereinigung hat %1 freigegeben</translation>
    </message>
    <message>
        <source>all enabled items</source>
        <translation>alle aktivierten Elemente</translation>
    </message>
    <message>
        <source>Everything here is a cache, log or rebuildable file that comes back automatically when it&apos;s needed.</source>
        <translation>Alles hier ist ein Cache, ein Protokoll oder eine wiederherstellbare Datei, die bei Bedarf automatisch neu entsteht.</translation>
    </message>
    <message>
        <source>Freed %1 from %2</source>
        <translation>%1 aus %2 freigegeben</translation>
    </message>
    <message>
        <source>Freed %1 total</source>
        <translation>Insgesamt %1 freigegeben</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>%1 wiederhergestellt</translation>
    </message>
    <message>
        <source>Already added.</source>
        <translation>Bereits hinzugefügt.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a target&apos;s name and what went wrong</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>AppPicker</name>
    <message>
        <source>Apps in your home folder</source>
        <translation>Apps in Ihrem Benutzerordner</translation>
    </message>
    <message>
        <source>No apps found in your home folder.</source>
        <translation>Keine Apps in Ihrem Benutzerordner gefunden.</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Andere …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>AppUpdatesModel</name>
    <message>
        <source>Outdated apps and tools you installed with Homebrew or Flatpak. Mopwell never bundles installers or updates silently — it just runs your own `brew upgrade` or `flatpak update` when you ask.</source>
        <translation>Veraltete Apps und Werkzeuge, die Sie mit Homebrew oder Flatpak installiert haben. Mopwell bringt nie eigene Installationsprogramme mit und aktualisiert nichts heimlich – es führt nur Ihr eigenes `brew upgrade` oder `flatpak update` aus, wenn Sie darum bitten.</translation>
    </message>
    <message>
        <source>Outdated apps you installed with Flatpak. Mopwell never bundles installers or updates silently — it just runs your own `flatpak update` when you ask.</source>
        <translation>Veraltete Apps, die Sie mit Flatpak installiert haben. Mopwell bringt nie eigene Installationsprogramme mit und aktualisiert nichts heimlich – es führt nur Ihr eigenes `flatpak update` aus, wenn Sie darum bitten.</translation>
    </message>
    <message>
        <source>Outdated apps and tools you installed with Homebrew. Mopwell never bundles installers or updates silently — it just runs your own `brew upgrade` when you ask.</source>
        <translation>Veraltete Apps und Werkzeuge, die Sie mit Homebrew installiert haben. Mopwell bringt nie eigene Installationsprogramme mit und aktualisiert nichts heimlich – es führt nur Ihr eigenes `brew upgrade` aus, wenn Sie darum bitten.</translation>
    </message>
    <message>
        <source>Checking with Homebrew and Flatpak…</source>
        <translation>Frage Homebrew und Flatpak …</translation>
    </message>
    <message>
        <source>Checking with Homebrew…</source>
        <translation>Frage Homebrew …</translation>
    </message>
    <message>
        <source>Neither Homebrew nor Flatpak is installed</source>
        <translation>Weder Homebrew noch Flatpak ist installiert</translation>
    </message>
    <message>
        <source>Homebrew isn&apos;t installed</source>
        <translation>Homebrew ist nicht installiert</translation>
    </message>
    <message>
        <source>Get Homebrew at brew.sh</source>
        <translation>Homebrew gibt es auf brew.sh</translation>
    </message>
    <message>
        <source>Get Flatpak at flatpak.org</source>
        <translation>Flatpak gibt es auf flatpak.org</translation>
    </message>
    <message>
        <source>Updating %1…</source>
        <translation>%1 wird aktualisiert …</translation>
    </message>
    <message>
        <source>Updated %1.</source>
        <translation>%1 aktualisiert.</translation>
    </message>
    <message>
        <source>Couldn&apos;t update %1.</source>
        <translation>%1 konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Updating everything…</source>
        <translation>Alles wird aktualisiert …</translation>
    </message>
    <message>
        <source>Done.</source>
        <translation>Fertig.</translation>
    </message>
</context>
<context>
    <name>AppUpdatesView</name>
    <message>
        <source>App &amp; Tool Updates</source>
        <translation>App- &amp; Werkzeug-Updates</translation>
    </message>
    <message>
        <source>Everything&apos;s up to date</source>
        <translation>Alles ist aktuell</translation>
    </message>
    <message>
        <source>Re-check</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>Update All</source>
        <translation>Alle aktualisieren</translation>
    </message>
</context>
<context>
    <name>BuildArtifactType</name>
    <message>
        <source>py caches</source>
        <translation>Python-Caches</translation>
    </message>
</context>
<context>
    <name>ByteCountFormatter</name>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>TB</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>PB</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>EB</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>Null KB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>Folder doesn&apos;t exist.</source>
        <translation>Der Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>That location is protected and can&apos;t be cleaned.</source>
        <translation>Dieser Ort ist geschützt und kann nicht bereinigt werden.</translation>
    </message>
    <message>
        <source>Refused (protected): %1</source>
        <translation>Abgelehnt (geschützt): %1</translation>
    </message>
    <message>
        <source>Command exited with status %1</source>
        <translation>Befehl mit Status %1 beendet</translation>
    </message>
</context>
<context>
    <name>CleanupCatalog</name>
    <message>
        <source>App cache files</source>
        <translation>App-Cache-Dateien</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Display server logs</source>
        <translation>Protokolle des Displayservers</translation>
    </message>
    <message>
        <source>Saved session state</source>
        <translation>Gesicherter Sitzungszustand</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturansichten</translation>
    </message>
    <message>
        <source>Flatpak app caches</source>
        <translation>Caches von Flatpak-Apps</translation>
    </message>
    <message>
        <source>Google Chrome cache</source>
        <translation>Google-Chrome-Cache</translation>
    </message>
    <message>
        <source>Chromium cache</source>
        <translation>Chromium-Cache</translation>
    </message>
    <message>
        <source>Firefox cache</source>
        <translation>Firefox-Cache</translation>
    </message>
    <message>
        <source>Gradle caches</source>
        <translation>Gradle-Caches</translation>
    </message>
    <message>
        <source>npm cache</source>
        <translation>npm-Cache</translation>
    </message>
    <message>
        <source>Yarn cache</source>
        <translation>Yarn-Cache</translation>
    </message>
    <message>
        <source>pnpm store</source>
        <translation>pnpm-Speicher</translation>
    </message>
    <message>
        <source>uv cache</source>
        <translation>uv-Cache</translation>
    </message>
    <message>
        <source>pip cache</source>
        <translation>pip-Cache</translation>
    </message>
    <message>
        <source>Flutter / pub cache</source>
        <translation>Flutter-/pub-Cache</translation>
    </message>
    <message>
        <source>Go module cache</source>
        <translation>Go-Modul-Cache</translation>
    </message>
    <message>
        <source>Cargo registry cache</source>
        <translation>Cargo-Registry-Cache</translation>
    </message>
    <message>
        <source>Docker prune</source>
        <translation>Docker aufräumen</translation>
    </message>
    <message>
        <source>JetBrains caches</source>
        <translation>JetBrains-Caches</translation>
    </message>
    <message>
        <source>Homebrew cleanup</source>
        <translation>Homebrew aufräumen</translation>
    </message>
    <message>
        <source>Swift / build tool caches</source>
        <translation>Swift-/Build-Werkzeug-Caches</translation>
    </message>
    <message>
        <source>ML / browser-automation caches</source>
        <translation>ML-/Browser-Automatisierungs-Caches</translation>
    </message>
    <message>
        <source>node_modules folders</source>
        <translation>node_modules-Ordner</translation>
    </message>
    <message>
        <source>Next.js build output</source>
        <translation>Next.js-Build-Ausgabe</translation>
    </message>
    <message>
        <source>Rust target folders</source>
        <translation>Rust-target-Ordner</translation>
    </message>
    <message>
        <source>Python __pycache__</source>
        <translation>Python-__pycache__</translation>
    </message>
    <message>
        <source>Python virtualenvs</source>
        <translation>Virtuelle Python-Umgebungen</translation>
    </message>
    <message>
        <source>Cached web data — pages reload as needed</source>
        <translation>Zwischengespeicherte Webdaten – Seiten laden bei Bedarf neu</translation>
    </message>
    <message>
        <source>Reinstall with npm/yarn/pnpm install</source>
        <translation>Neu installieren mit npm/yarn/pnpm install</translation>
    </message>
    <message>
        <source>.next folders — rebuilt on next build</source>
        <translation>.next-Ordner – beim nächsten Build neu erstellt</translation>
    </message>
    <message>
        <source>target/ next to Cargo.toml — rebuilt with cargo build</source>
        <translation>target/ neben Cargo.toml – neu erstellt mit cargo build</translation>
    </message>
    <message>
        <source>Bytecode caches — regenerated automatically</source>
        <translation>Bytecode-Caches – werden automatisch neu erzeugt</translation>
    </message>
    <message>
        <source>.venv next to a manifest — recreate with pip install</source>
        <translation>.venv neben einem Manifest – neu anlegen mit pip install</translation>
    </message>
    <message>
        <source>These are items you already moved to the Trash.</source>
        <translation>Das sind Elemente, die Sie bereits in den Papierkorb verschoben haben.</translation>
    </message>
    <message>
        <source>Old diagnostic logs. Apps write fresh ones as needed — nothing you use is lost.</source>
        <translation>Alte Diagnoseprotokolle. Apps schreiben bei Bedarf neue – nichts, was Sie nutzen, geht verloren.</translation>
    </message>
    <message>
        <source>Streamed songs re-cache automatically the next time you play them.</source>
        <translation>Gestreamte Titel werden beim nächsten Abspielen automatisch wieder zwischengespeichert.</translation>
    </message>
    <message>
        <source>Apps just won&apos;t reopen last session&apos;s windows. It doesn&apos;t log you out or lose data.</source>
        <translation>Apps öffnen nur die Fenster der letzten Sitzung nicht wieder. Sie werden nicht abgemeldet, und es gehen keine Daten verloren.</translation>
    </message>
    <message>
        <source>Temp copies of attachments you opened. Re-copied on demand; originals stay on the server.</source>
        <translation>Temporäre Kopien geöffneter Anhänge. Sie werden bei Bedarf neu kopiert; die Originale bleiben auf dem Server.</translation>
    </message>
    <message>
        <source>Docker recreates images, layers and build cache the next time you build or pull.</source>
        <translation>Docker erstellt Images, Layer und Build-Cache beim nächsten Build oder Pull neu.</translation>
    </message>
    <message>
        <source>Reinstalled instantly with npm / yarn / pnpm install.</source>
        <translation>Sofort neu installiert mit npm / yarn / pnpm install.</translation>
    </message>
    <message>
        <source>Xcode rebuilds DerivedData on your next build.</source>
        <translation>Xcode erstellt DerivedData beim nächsten Build neu.</translation>
    </message>
    <message>
        <source>A folder you added yourself — only its contents are cleared.</source>
        <translation>Ein Ordner, den Sie selbst hinzugefügt haben – nur sein Inhalt wird geleert.</translation>
    </message>
    <message>
        <source>Rebuilt the next time you build the project (npm install, cargo build, …).</source>
        <translation>Wird beim nächsten Build des Projekts neu erstellt (npm install, cargo build …).</translation>
    </message>
    <message>
        <source>Re-downloaded or rebuilt automatically the next time you build or install.</source>
        <translation>Wird beim nächsten Build oder bei der nächsten Installation automatisch neu geladen oder erstellt.</translation>
    </message>
    <message>
        <source>Apps and websites recreate these caches automatically when they next need them.</source>
        <translation>Apps und Websites legen diese Caches automatisch neu an, sobald sie sie wieder brauchen.</translation>
    </message>
    <message>
        <source>Temporary files apps recreate as needed</source>
        <translation>Temporäre Dateien, die Apps bei Bedarf neu anlegen</translation>
    </message>
    <message>
        <source>Empty the Trash</source>
        <translation>Papierkorb leeren</translation>
    </message>
    <message>
        <source>Old Xorg log files</source>
        <translation>Alte Xorg-Protokolldateien</translation>
    </message>
    <message>
        <source>Window/tab restore data — apps won&apos;t reopen last session</source>
        <translation>Daten zum Wiederherstellen von Fenstern/Tabs – Apps öffnen die letzte Sitzung nicht wieder</translation>
    </message>
    <message>
        <source>Previews file managers recreate as needed</source>
        <translation>Vorschaubilder, die Dateimanager bei Bedarf neu erstellen</translation>
    </message>
    <message>
        <source>Temporary files Flatpak apps recreate as needed</source>
        <translation>Temporäre Dateien, die Flatpak-Apps bei Bedarf neu anlegen</translation>
    </message>
    <message>
        <source>Android/Gradle downloads &amp; build cache</source>
        <translation>Android-/Gradle-Downloads &amp; Build-Cache</translation>
    </message>
    <message>
        <source>Node package cache</source>
        <translation>Cache der Node-Pakete</translation>
    </message>
    <message>
        <source>Yarn package cache</source>
        <translation>Cache der Yarn-Pakete</translation>
    </message>
    <message>
        <source>pnpm content-addressable store</source>
        <translation>Inhaltsadressierter Speicher von pnpm</translation>
    </message>
    <message>
        <source>Python uv package cache</source>
        <translation>Paket-Cache von Python uv</translation>
    </message>
    <message>
        <source>Python pip download cache</source>
        <translation>Download-Cache von Python pip</translation>
    </message>
    <message>
        <source>Dart/Flutter packages</source>
        <translation>Dart-/Flutter-Pakete</translation>
    </message>
    <message>
        <source>Downloaded Go modules</source>
        <translation>Heruntergeladene Go-Module</translation>
    </message>
    <message>
        <source>Rust crate downloads</source>
        <translation>Heruntergeladene Rust-Crates</translation>
    </message>
    <message>
        <source>Dangling images, stopped containers, build cache</source>
        <translation>Verwaiste Images, gestoppte Container, Build-Cache</translation>
    </message>
    <message>
        <source>IntelliJ/PyCharm/etc. caches</source>
        <translation>Caches von IntelliJ/PyCharm usw.</translation>
    </message>
    <message>
        <source>Old versions &amp; download cache</source>
        <translation>Alte Versionen &amp; Download-Cache</translation>
    </message>
    <message>
        <source>SwiftPM, TypeScript, node-gyp</source>
        <translation>Caches von SwiftPM, TypeScript und node-gyp</translation>
    </message>
    <message>
        <source>puppeteer, huggingface, whisper, selenium</source>
        <translation>puppeteer, huggingface, whisper und selenium</translation>
    </message>
</context>
<context>
    <name>CleanupCategory</name>
    <message>
        <source>Recommended</source>
        <translation>Empfohlen</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>Browser-Caches</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>Entwickler-Caches</translation>
    </message>
    <message>
        <source>Build artifacts</source>
        <translation>Build-Artefakte</translation>
    </message>
    <message>
        <source>Custom folders</source>
        <translation>Eigene Ordner</translation>
    </message>
</context>
<context>
    <name>ConfirmSheet</name>
    <message>
        <source>%1 item</source>
        <translation>%1 Element</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>Frees about %1. This data regenerates automatically.</source>
        <translation>Gibt etwa %1 frei. Diese Daten entstehen automatisch neu.</translation>
    </message>
    <message>
        <source>Will clear</source>
        <translation>Wird geleert</translation>
    </message>
    <message>
        <source>Delete permanently (skip the Trash)</source>
        <translation>Endgültig löschen (ohne Papierkorb)</translation>
    </message>
    <message>
        <source>Useful for very large build folders — frees the space immediately, but can&apos;t be recovered.</source>
        <translation>Nützlich bei sehr großen Build-Ordnern – gibt den Platz sofort frei, lässt sich aber nicht wiederherstellen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>%1 bereinigen</translation>
    </message>
</context>
<context>
    <name>ConfirmWindowView</name>
    <message>
        <source>Confirm Cleanup</source>
        <translation>Bereinigung bestätigen</translation>
    </message>
</context>
<context>
    <name>DesktopWords</name>
    <message>
        <source>Finder</source>
        <translation>Finder</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>Im Finder zeigen</translation>
    </message>
    <message>
        <source>Reveal project in Finder</source>
        <translation>Projekt im Finder zeigen</translation>
    </message>
    <message>
        <source>Open Login Items…</source>
        <translation>Anmeldeobjekte öffnen …</translation>
    </message>
    <message>
        <source>Double-tap to open</source>
        <translation>Zum Öffnen doppelt tippen</translation>
    </message>
    <message>
        <source>App login items are managed by macOS.</source>
        <translation>Anmeldeobjekte von Apps verwaltet macOS.</translation>
    </message>
    <message>
        <source>Local snapshots are temporary copies Time Machine keeps so it can back up when your drive isn&apos;t connected. macOS frees them automatically under pressure — removing them reclaims that space now. Your Time Machine backups on external or network drives are not touched.</source>
        <translation>Lokale Schnappschüsse sind vorübergehende Kopien, die Time Machine anlegt, damit sie auch ohne angeschlossenes Laufwerk sichern kann. macOS gibt sie bei Platzmangel automatisch frei – wenn Sie sie entfernen, gewinnen Sie den Platz sofort zurück. Ihre Time-Machine-Backups auf externen oder Netzwerklaufwerken bleiben unberührt.</translation>
    </message>
    <message>
        <source>Snapshots removed — macOS may report the freed space in a moment.</source>
        <translation>Schnappschüsse entfernt – macOS zeigt den freigegebenen Platz eventuell erst gleich an.</translation>
    </message>
    <message>
        <source>File Manager</source>
        <translation>Dateimanager</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Show project in File Manager</source>
        <translation>Projekt im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Open Startup Settings…</source>
        <translation>Autostart-Einstellungen öffnen …</translation>
    </message>
    <message>
        <source>Double-click to open</source>
        <translation>Zum Öffnen doppelklicken</translation>
    </message>
    <message>
        <source>Startup apps for all users are managed by your desktop.</source>
        <translation>Autostart-Programme für alle Benutzer verwaltet Ihre Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Snapshots are copies of your system that Snapper keeps on Btrfs so you can undo changes. Old ones hold on to space — removing them reclaims it now. Your backups on other drives are not touched.</source>
        <translation>Schnappschüsse sind Kopien Ihres Systems, die Snapper auf Btrfs anlegt, damit Sie Änderungen rückgängig machen können. Alte Schnappschüsse belegen weiter Platz – wenn Sie sie entfernen, gewinnen Sie ihn sofort zurück. Ihre Backups auf anderen Laufwerken bleiben unberührt.</translation>
    </message>
    <message>
        <source>Snapshots removed — the file system may report the freed space in a moment.</source>
        <translation>Schnappschüsse entfernt – das Dateisystem zeigt den freigegebenen Platz eventuell erst gleich an.</translation>
    </message>
    <message>
        <source>Free up space from caches and junk you don&apos;t need — cleaned safely, right from your menu bar.</source>
        <translation>Geben Sie Platz frei, den Caches und unnötiger Kram belegen – sicher bereinigt, direkt aus der Menüleiste.</translation>
    </message>
    <message>
        <source>How do you use this Mac?</source>
        <translation>Wie nutzen Sie diesen Mac?</translation>
    </message>
    <message>
        <source>Open Mopwell from the menu bar any time to clean up or explore the Disk Map.</source>
        <translation>Öffnen Sie Mopwell jederzeit über die Menüleiste, um aufzuräumen oder die Festplattenkarte zu erkunden.</translation>
    </message>
    <message>
        <source>Click the drive icon in your menu bar any time to free up space or open the Disk Map.</source>
        <translation>Klicken Sie jederzeit auf das Laufwerkssymbol in der Menüleiste, um Platz freizugeben oder die Festplattenkarte zu öffnen.</translation>
    </message>
    <message>
        <source>Free up space from caches and junk you don&apos;t need — cleaned safely, right from your panel.</source>
        <translation>Geben Sie Platz frei, den Caches und unnötiger Kram belegen – sicher bereinigt, direkt aus der Leiste Ihrer Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>How do you use this computer?</source>
        <translation>Wie nutzen Sie diesen Computer?</translation>
    </message>
    <message>
        <source>Open Mopwell from its icon in the panel any time to clean up or explore the Disk Map.</source>
        <translation>Öffnen Sie Mopwell jederzeit über sein Symbol in der Leiste, um aufzuräumen oder die Festplattenkarte zu erkunden.</translation>
    </message>
    <message>
        <source>Click Mopwell&apos;s icon in your panel any time to free up space or open the Disk Map.</source>
        <translation>Klicken Sie jederzeit auf das Symbol von Mopwell in der Leiste, um Platz freizugeben oder die Festplattenkarte zu öffnen.</translation>
    </message>
    <message>
        <source>Menu bar shows</source>
        <translation>Menüleiste zeigt</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Nur Symbol</translation>
    </message>
    <message>
        <source>Everyday caches, one tap.</source>
        <translation>Alltägliche Caches, mit einem Tipp.</translation>
    </message>
    <message>
        <source>Also Xcode, npm, Docker &amp; node_modules.</source>
        <translation>Auch Xcode, npm, Docker &amp; node_modules.</translation>
    </message>
    <message>
        <source>Reveals Xcode, npm, Docker and other dev caches, plus node_modules and build folders in your projects.</source>
        <translation>Zeigt Caches von Xcode, npm, Docker und anderen Entwicklerwerkzeugen sowie node_modules- und Build-Ordner in Ihren Projekten.</translation>
    </message>
    <message>
        <source>Status icon tooltip shows</source>
        <translation>Tooltip des Statussymbols zeigt</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Everyday caches, one click.</source>
        <translation>Alltägliche Caches, mit einem Klick.</translation>
    </message>
    <message>
        <source>Also npm, Docker, Gradle &amp; node_modules.</source>
        <translation>Auch npm, Docker, Gradle &amp; node_modules.</translation>
    </message>
    <message>
        <source>Reveals npm, Docker, Gradle and other dev caches, plus node_modules and build folders in your projects.</source>
        <translation>Zeigt Caches von npm, Docker, Gradle und anderen Entwicklerwerkzeugen sowie node_modules- und Build-Ordner in Ihren Projekten.</translation>
    </message>
</context>
<context>
    <name>DeveloperSections</name>
    <message>
        <source>Developer mode</source>
        <translation>Entwicklermodus</translation>
    </message>
    <message>
        <source>Show developer cleanups</source>
        <translation>Entwickler-Bereinigungen zeigen</translation>
    </message>
    <message>
        <source>Sort cleanups by size (largest first)</source>
        <translation>Bereinigungen nach Größe sortieren (größte zuerst)</translation>
    </message>
    <message>
        <source>Tools like Project Cleanup and App &amp; Tool Updates are in the panel&apos;s “More” menu.</source>
        <translation>Werkzeuge wie „Projekte aufräumen“ und „App- &amp; Werkzeug-Updates“ finden Sie im Menü „Mehr“ des Panels.</translation>
    </message>
    <message>
        <source>Build-folder cleanup</source>
        <translation>Build-Ordner bereinigen</translation>
    </message>
    <message>
        <source>Only clean folders older than</source>
        <translation>Nur Ordner bereinigen älter als</translation>
    </message>
    <message>
        <source>Skips node_modules / build folders modified more recently — protects projects you&apos;re actively working on.</source>
        <translation>Überspringt node_modules- und Build-Ordner, die kürzlich geändert wurden – schützt Projekte, an denen Sie gerade arbeiten.</translation>
    </message>
    <message>
        <source>Never touch these (pinned)</source>
        <translation>Nie anrühren (angeheftet)</translation>
    </message>
    <message>
        <source>No pinned folders. Pin a project to keep its build folders off the cleanup list.</source>
        <translation>Keine angehefteten Ordner. Heften Sie ein Projekt an, damit seine Build-Ordner nicht auf der Bereinigungsliste landen.</translation>
    </message>
    <message>
        <source>Pin Folder…</source>
        <translation>Ordner anheften …</translation>
    </message>
    <message>
        <source>Project folders to scan</source>
        <translation>Zu durchsuchende Projektordner</translation>
    </message>
    <message>
        <source>Where your code lives. Mopwell looks &lt;i&gt;inside&lt;/i&gt; these for regenerable build output (node_modules, .next, target, …) to offer up in Project Cleanup. The folders themselves are never removed — only the build artifacts found within them.</source>
        <translation>Wo Ihr Code liegt. Mopwell sucht &lt;i&gt;darin&lt;/i&gt; nach wiederherstellbaren Build-Ergebnissen (node_modules, .next, target, …), die „Projekte aufräumen“ anbietet. Die Ordner selbst werden nie entfernt – nur die darin gefundenen Build-Artefakte.</translation>
    </message>
    <message>
        <source>No project folders — add the folders where your code lives.</source>
        <translation>Keine Projektordner – fügen Sie die Ordner hinzu, in denen Ihr Code liegt.</translation>
    </message>
    <message>
        <source>Add Project Folder…</source>
        <translation>Projektordner hinzufügen …</translation>
    </message>
</context>
<context>
    <name>DiskMap</name>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>versteckt</translation>
    </message>
    <message>
        <source>(smaller items)</source>
        <translation>(kleinere Elemente)</translation>
    </message>
</context>
<context>
    <name>DiskMapArea</name>
    <message>
        <source>Disk usage treemap</source>
        <translation>Treemap der Festplattenbelegung</translation>
    </message>
    <message>
        <source>No folder scanned</source>
        <translation>Kein Ordner durchsucht</translation>
    </message>
    <message>
        <source>%1, %2 items, %3. Use the list on the right to browse items.</source>
        <translation>%1, %2 Elemente, %3. Mit der Liste rechts können Sie die Elemente durchgehen.</translation>
    </message>
    <message>
        <source>Nothing to show here</source>
        <translation>Hier gibt es nichts anzuzeigen</translation>
    </message>
</context>
<context>
    <name>DiskMapDetailBar</name>
    <message>
        <source>Hidden</source>
        <translation>Versteckt</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>DiskMapLegend</name>
    <message>
        <source>Recent</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Over a year</source>
        <translation>Über ein Jahr</translation>
    </message>
</context>
<context>
    <name>DiskMapModel</name>
    <message>
        <source>Scanning… %1</source>
        <translation>Durchsuche … %1</translation>
    </message>
</context>
<context>
    <name>DiskMapStartScreen</name>
    <message>
        <source>What do you want to scan?</source>
        <translation>Was möchten Sie durchsuchen?</translation>
    </message>
    <message>
        <source>Pick a location to map what&apos;s using its space.</source>
        <translation>Wählen Sie einen Ort, um zu sehen, was dort Platz belegt.</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
</context>
<context>
    <name>DiskMapToolbar</name>
    <message>
        <source>Scan</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Erneut durchsuchen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Color tiles by file type or by age</source>
        <translation>Kacheln nach Dateityp oder Alter färben</translation>
    </message>
</context>
<context>
    <name>DiskMapView</name>
    <message>
        <source>Choose a folder to map</source>
        <translation>Wählen Sie einen Ordner für die Karte</translation>
    </message>
    <message>
        <source>Move “%1” to the Trash?</source>
        <translation>„%1“ in den Papierkorb legen?</translation>
    </message>
    <message>
        <source>Frees %1. You can put it back from the Trash.</source>
        <translation>Gibt %1 frei. Sie können es aus dem Papierkorb zurücklegen.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Durchsuchen</translation>
    </message>
</context>
<context>
    <name>DiskNodeListModel</name>
    <message>
        <source>%1, %2 percent</source>
        <translation>%1, %2 Prozent</translation>
    </message>
</context>
<context>
    <name>DiskNodeMenu</name>
    <message>
        <source>Zoom In</source>
        <translation>Hineinzoomen</translation>
    </message>
    <message>
        <source>Smaller items folded together</source>
        <translation>Kleinere Elemente zusammengefasst</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>DiskUsageRingView</name>
    <message>
        <source>used</source>
        <translation>belegt</translation>
    </message>
</context>
<context>
    <name>FileCategory</name>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>Caches &amp; Protokolle</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
</context>
<context>
    <name>FileListRow</name>
    <message>
        <source>%1 copies · %2 each</source>
        <translation>%1 Kopien · je %2</translation>
    </message>
    <message>
        <source>save %1</source>
        <translation>%1 sparen</translation>
    </message>
</context>
<context>
    <name>FolderListSection</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>GeneralSection</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Available once Mopwell is installed.</source>
        <translation>Verfügbar, sobald Mopwell installiert ist.</translation>
    </message>
    <message>
        <source>Refresh every</source>
        <translation>Aktualisieren alle</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Percentage used</source>
        <translation>Belegung in Prozent</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Freier Speicher</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Relaunch to apply the new language.</source>
        <translation>Neu starten, um die neue Sprache zu übernehmen.</translation>
    </message>
    <message>
        <source>Relaunch</source>
        <translation>Neu starten</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Restored</source>
        <translation>Wiederhergestellt</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Zurücklegen</translation>
    </message>
    <message>
        <source>Restore these items from the Trash</source>
        <translation>Diese Elemente aus dem Papierkorb wiederherstellen</translation>
    </message>
</context>
<context>
    <name>LargeFilesFooter</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>LargeFilesToolbar</name>
    <message>
        <source>Scan</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Größte</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
</context>
<context>
    <name>LargeFilesView</name>
    <message>
        <source>Find large &amp; duplicate files</source>
        <translation>Große &amp; doppelte Dateien finden</translation>
    </message>
    <message>
        <source>Pick a folder to scan for big files and byte-identical duplicates you can safely remove.</source>
        <translation>Wählen Sie einen Ordner, in dem nach großen Dateien und bytegleichen Duplikaten gesucht wird, die Sie gefahrlos entfernen können.</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>No files found</source>
        <translation>Keine Dateien gefunden</translation>
    </message>
    <message>
        <source>Nothing in this folder is large enough to list.</source>
        <translation>Nichts in diesem Ordner ist groß genug für die Liste.</translation>
    </message>
    <message>
        <source>No duplicates found</source>
        <translation>Keine Duplikate gefunden</translation>
    </message>
    <message>
        <source>Duplicates are byte-identical copies — unique files don&apos;t appear here.</source>
        <translation>Duplikate sind bytegleiche Kopien – einmalige Dateien erscheinen hier nicht.</translation>
    </message>
    <message>
        <source>Choose a folder to scan</source>
        <translation>Wählen Sie einen Ordner zum Durchsuchen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Durchsuchen</translation>
    </message>
</context>
<context>
    <name>LoginItem</name>
    <message>
        <source>Starting at login is only available in the installed application.</source>
        <translation>Der Start bei der Anmeldung ist nur in der installierten Anwendung verfügbar.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove Mopwell from the programs that start at login: %1</source>
        <translation>Mopwell konnte nicht aus den Programmen entfernt werden, die bei der Anmeldung starten: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t find Mopwell&apos;s own program file to start at login.</source>
        <translation>Die Programmdatei von Mopwell für den Start bei der Anmeldung wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t add Mopwell to the programs that start at login: %1</source>
        <translation>Mopwell konnte nicht zu den Programmen hinzugefügt werden, die bei der Anmeldung starten: %1</translation>
    </message>
</context>
<context>
    <name>MenuBarCoachMark</name>
    <message>
        <source>Mopwell lives up here</source>
        <translation>Mopwell wohnt hier oben</translation>
    </message>
    <message>
        <source>Mopwell lives down here</source>
        <translation>Mopwell wohnt hier unten</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
</context>
<context>
    <name>MenuPanelModel</name>
    <message>
        <source>Scanning…</source>
        <translation>Durchsuche …</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>%1s ago</source>
        <translation>vor %1 s</translation>
    </message>
    <message>
        <source>%1m ago</source>
        <translation>vor %1 min</translation>
    </message>
    <message>
        <source>%1h ago</source>
        <translation>vor %1 h</translation>
    </message>
    <message>
        <source>free of %1</source>
        <translation>frei von %1</translation>
    </message>
    <message>
        <source>%1 used</source>
        <translation>%1 belegt</translation>
    </message>
</context>
<context>
    <name>MenuPanelView</name>
    <message>
        <source>Rescan sizes</source>
        <translation>Größen neu ermitteln</translation>
    </message>
</context>
<context>
    <name>MoreMenu</name>
    <message>
        <source>Project Cleanup</source>
        <translation>Projekte aufräumen</translation>
    </message>
    <message>
        <source>Free Up Snapshots</source>
        <translation>Schnappschüsse freigeben</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>Startobjekte</translation>
    </message>
    <message>
        <source>App &amp; Tool Updates</source>
        <translation>App- &amp; Werkzeug-Updates</translation>
    </message>
</context>
<context>
    <name>NotificationCenter</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>Clean Up Now</source>
        <translation>Jetzt aufräumen</translation>
    </message>
    <message>
        <source>Low disk space</source>
        <translation>Wenig Speicherplatz</translation>
    </message>
    <message>
        <source>Only %1 available. Tap “Clean Up Now” to free up space.</source>
        <translation>Nur noch %1 verfügbar. Tippen Sie auf „Jetzt aufräumen“, um Platz freizugeben.</translation>
    </message>
    <message>
        <source>Mopwell cleaned up</source>
        <translation>Mopwell hat aufgeräumt</translation>
    </message>
    <message>
        <source>Freed %1 automatically. Items are in the Trash.</source>
        <translation>%1 automatisch freigegeben. Die Elemente liegen im Papierkorb.</translation>
    </message>
    <message>
        <source>Nothing to clean — you&apos;re already tidy.</source>
        <translation>Nichts zu bereinigen – bei Ihnen ist schon alles aufgeräumt.</translation>
    </message>
    <message>
        <source>Only %1 available. Click “Clean Up Now” to free up space.</source>
        <translation>Nur noch %1 verfügbar. Klicken Sie auf „Jetzt aufräumen“, um Platz freizugeben.</translation>
    </message>
</context>
<context>
    <name>OnboardingView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Skip for now</source>
        <translation>Vorerst überspringen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Los geht’s</translation>
    </message>
</context>
<context>
    <name>OptionalCaches</name>
    <message>
        <source>Streamed songs re-buffer next time. Often many GB.</source>
        <translation>Gestreamte Titel werden beim nächsten Mal neu geladen. Oft viele GB.</translation>
    </message>
    <message>
        <source>Often the biggest win. Streamed songs re-buffer next time.</source>
        <translation>Oft der größte Gewinn. Gestreamte Titel werden beim nächsten Mal neu geladen.</translation>
    </message>
    <message>
        <source>Apps won&apos;t reopen their last windows/tabs.</source>
        <translation>Apps öffnen ihre letzten Fenster/Tabs nicht wieder.</translation>
    </message>
    <message>
        <source>Apps won&apos;t reopen their last windows. Doesn&apos;t log you out.</source>
        <translation>Apps öffnen ihre letzten Fenster nicht wieder. Sie werden nicht abgemeldet.</translation>
    </message>
    <message>
        <source>Temp copies of opened attachments. Originals stay safe.</source>
        <translation>Temporäre Kopien geöffneter Anhänge. Die Originale bleiben erhalten.</translation>
    </message>
</context>
<context>
    <name>PackageRow</name>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>PanelFooter</name>
    <message>
        <source>reclaimable</source>
        <translation>freigebbar</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>Disk Map</source>
        <translation>Festplattenkarte</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Große Dateien</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Deinstallieren</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>PersonalizeStep</name>
    <message>
        <source>This just decides how much detail you see — you can switch any time.</source>
        <translation>Das bestimmt nur, wie viele Details Sie sehen – Sie können jederzeit wechseln.</translation>
    </message>
    <message>
        <source>Just clean up</source>
        <translation>Einfach aufräumen</translation>
    </message>
    <message>
        <source>I&apos;m a developer</source>
        <translation>Ich entwickle Software</translation>
    </message>
    <message>
        <source>RECLAIM A LITTLE MORE — OPTIONAL</source>
        <translation>NOCH ETWAS MEHR FREIGEBEN – OPTIONAL</translation>
    </message>
</context>
<context>
    <name>ProgressMarks</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
</context>
<context>
    <name>ProjectCleanupFooter</name>
    <message>
        <source>Deselect All</source>
        <translation>Alle abwählen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>%1 of %2 selected · %3 total</source>
        <translation>%1 von %2 ausgewählt · %3 insgesamt</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>ProjectCleanupModel</name>
    <message>
        <source>1 project folder</source>
        <translation>1 Projektordner</translation>
    </message>
    <message>
        <source>%1 project folders</source>
        <translation>%1 Projektordner</translation>
    </message>
</context>
<context>
    <name>ProjectCleanupToolbar</name>
    <message>
        <source>Rescan</source>
        <translation>Erneut durchsuchen</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Scanning… %1 found</source>
        <translation>Durchsuche … %1 gefunden</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>Group build folders by project</source>
        <translation>Build-Ordner nach Projekt gruppieren</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Oldest</source>
        <translation>Älteste</translation>
    </message>
</context>
<context>
    <name>ProjectCleanupView</name>
    <message>
        <source>Project Cleanup</source>
        <translation>Projekte aufräumen</translation>
    </message>
    <message>
        <source>Scanning %1… %2 found</source>
        <translation>Durchsuche %1 … %2 gefunden</translation>
    </message>
    <message>
        <source>No build folders found</source>
        <translation>Keine Build-Ordner gefunden</translation>
    </message>
    <message>
        <source>Nothing to clean under %1</source>
        <translation>Unter %1 gibt es nichts zu bereinigen</translation>
    </message>
    <message>
        <source>Choose a folder to scan</source>
        <translation>Wählen Sie einen Ordner zum Durchsuchen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Move 1 build folder to the Trash?</source>
        <translation>1 Build-Ordner in den Papierkorb legen?</translation>
    </message>
    <message>
        <source>Move %1 build folders to the Trash?</source>
        <translation>%1 Build-Ordner in den Papierkorb legen?</translation>
    </message>
    <message>
        <source>They&apos;ll go to the Trash, so you can put them back. Build folders regenerate next time you build.</source>
        <translation>Sie landen im Papierkorb, Sie können sie also zurücklegen. Build-Ordner entstehen beim nächsten Build neu.</translation>
    </message>
    <message>
        <source>Move %1 to Trash</source>
        <translation>%1 in den Papierkorb</translation>
    </message>
</context>
<context>
    <name>ProjectDirRow</name>
    <message>
        <source>Never suggest this folder</source>
        <translation>Diesen Ordner nie vorschlagen</translation>
    </message>
</context>
<context>
    <name>ProjectDirText</name>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>gestern</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>vor %1 Tagen</translation>
    </message>
    <message>
        <source>%1 mo ago</source>
        <translation>vor %1 Mon.</translation>
    </message>
    <message>
        <source>%1 yr ago</source>
        <translation>vor %1 J.</translation>
    </message>
</context>
<context>
    <name>ProjectGroupHeader</name>
    <message>
        <source>Select all in this project</source>
        <translation>Alle in diesem Projekt auswählen</translation>
    </message>
</context>
<context>
    <name>ProjectKindChips</name>
    <message>
        <source>Clear</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>ProjectRowMenu</name>
    <message>
        <source>Never Suggest This Folder</source>
        <translation>Diesen Ordner nie vorschlagen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Mopwell Settings</source>
        <translation>Mopwell-Einstellungen</translation>
    </message>
    <message>
        <source>Confirm Cleanup</source>
        <translation>Bereinigung bestätigen</translation>
    </message>
    <message>
        <source>Disk Map</source>
        <translation>Festplattenkarte</translation>
    </message>
    <message>
        <source>Large &amp; Duplicate Files</source>
        <translation>Große &amp; doppelte Dateien</translation>
    </message>
    <message>
        <source>Project Cleanup</source>
        <translation>Projekte aufräumen</translation>
    </message>
    <message>
        <source>Startup &amp; Background Items</source>
        <translation>Start- &amp; Hintergrundobjekte</translation>
    </message>
    <message>
        <source>Free Up Snapshot Space</source>
        <translation>Platz von Schnappschüssen freigeben</translation>
    </message>
    <message>
        <source>App &amp; Tool Updates</source>
        <translation>App- &amp; Werkzeug-Updates</translation>
    </message>
    <message>
        <source>Uninstall an App</source>
        <translation>App deinstallieren</translation>
    </message>
    <message>
        <source>About Mopwell</source>
        <translation>Über Mopwell</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Softwareupdate</translation>
    </message>
</context>
<context>
    <name>SafetyStep</name>
    <message>
        <source>Only ever clears regenerable files</source>
        <translation>Entfernt nur wiederherstellbare Dateien</translation>
    </message>
    <message>
        <source>Caches and build output — never your documents, photos, or code.</source>
        <translation>Caches und Build-Ergebnisse – nie Ihre Dokumente, Fotos oder Ihren Code.</translation>
    </message>
    <message>
        <source>Shows you everything first</source>
        <translation>Zeigt Ihnen zuerst alles</translation>
    </message>
    <message>
        <source>Exactly what&apos;s removed, and how much space, before you confirm.</source>
        <translation>Genau was entfernt wird und wie viel Platz, bevor Sie bestätigen.</translation>
    </message>
    <message>
        <source>Recoverable by default</source>
        <translation>Standardmäßig wiederherstellbar</translation>
    </message>
    <message>
        <source>Items move to the Trash, so anything can be brought back.</source>
        <translation>Elemente wandern in den Papierkorb, alles lässt sich zurückholen.</translation>
    </message>
    <message>
        <source>Safe by design</source>
        <translation>Von Grund auf sicher</translation>
    </message>
    <message>
        <source>Mopwell is built so you never lose anything that matters.</source>
        <translation>Mopwell ist so gebaut, dass Sie nie etwas Wichtiges verlieren.</translation>
    </message>
    <message>
        <source>Move cleaned items to the Trash</source>
        <translation>Bereinigte Elemente in den Papierkorb legen</translation>
    </message>
    <message>
        <source>Recommended — recover anything you change your mind about.</source>
        <translation>Empfohlen – holen Sie alles zurück, wenn Sie es sich anders überlegen.</translation>
    </message>
</context>
<context>
    <name>ScanPreset</name>
    <message>
        <source>Home</source>
        <translation>Benutzerordner</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>Whole Disk</source>
        <translation>Gesamte Festplatte</translation>
    </message>
    <message>
        <source>Flatpak Apps</source>
        <translation>Flatpak-Apps</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>App-Daten</translation>
    </message>
</context>
<context>
    <name>ScanningText</name>
    <message>
        <source>Scanning… %1 files</source>
        <translation>Durchsuche … %1 Dateien</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Any age</source>
        <translation>Beliebiges Alter</translation>
    </message>
    <message>
        <source>%1 day</source>
        <translation>%1 Tag</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Mopwell Settings</source>
        <translation>Mopwell-Einstellungen</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Automatic cleanup</source>
        <translation>Automatische Bereinigung</translation>
    </message>
    <message>
        <source>Clean caches automatically</source>
        <translation>Caches automatisch bereinigen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Mopwell only cleans when you ask.</source>
        <translation>Mopwell bereinigt nur, wenn Sie es möchten.</translation>
    </message>
    <message>
        <source>Quietly clears recoverable caches &amp; logs to the Trash, then notifies you. Never empties the Trash or touches build folders.</source>
        <translation>Legt wiederherstellbare Caches &amp; Protokolle still in den Papierkorb und benachrichtigt Sie dann. Leert nie den Papierkorb und rührt keine Build-Ordner an.</translation>
    </message>
    <message>
        <source>Low-space alert</source>
        <translation>Warnung bei wenig Speicher</translation>
    </message>
    <message>
        <source>Notify when low on space</source>
        <translation>Bei wenig Speicher benachrichtigen</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Show welcome screen…</source>
        <translation>Willkommensbildschirm zeigen …</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Bereinigung</translation>
    </message>
    <message>
        <source>Move cleaned items to the Trash</source>
        <translation>Bereinigte Elemente in den Papierkorb legen</translation>
    </message>
    <message>
        <source>Recoverable — items go to the Trash. (CLI tools like Homebrew/Docker still delete directly.)</source>
        <translation>Wiederherstellbar – Elemente kommen in den Papierkorb. (Kommandozeilenwerkzeuge wie Homebrew/Docker löschen weiterhin direkt.)</translation>
    </message>
    <message>
        <source>Permanent — items are deleted immediately.</source>
        <translation>Endgültig – Elemente werden sofort gelöscht.</translation>
    </message>
    <message>
        <source>Extra system caches</source>
        <translation>Zusätzliche System-Caches</translation>
    </message>
    <message>
        <source>Custom folders to clean</source>
        <translation>Eigene Ordner zum Bereinigen</translation>
    </message>
    <message>
        <source>Extra folders you want Mopwell to empty when cleaning — e.g. a Downloads or scratch folder. Their contents are removed (to the Trash). Add only folders whose contents you&apos;re happy to clear.</source>
        <translation>Zusätzliche Ordner, die Mopwell beim Bereinigen leeren soll – etwa ein Download- oder Ablageordner. Ihr Inhalt wird entfernt (in den Papierkorb). Fügen Sie nur Ordner hinzu, deren Inhalt Sie gern loswerden.</translation>
    </message>
    <message>
        <source>No custom folders added.</source>
        <translation>Keine eigenen Ordner hinzugefügt.</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>SimpleGroup</name>
    <message>
        <source>System &amp; app caches</source>
        <translation>System- &amp; App-Caches</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>Browser-Caches</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
</context>
<context>
    <name>SimpleGroupRow</name>
    <message>
        <source>Include in clean-up</source>
        <translation>Beim Aufräumen einbeziehen</translation>
    </message>
    <message>
        <source>Include %1 in clean-up</source>
        <translation>%1 beim Aufräumen einbeziehen</translation>
    </message>
</context>
<context>
    <name>SnapshotRow</name>
    <message>
        <source>Kept</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Will remove</source>
        <translation>Wird entfernt</translation>
    </message>
</context>
<context>
    <name>SnapshotsModel</name>
    <message>
        <source>Free Up Space (%1)</source>
        <translation>Platz freigeben (%1)</translation>
    </message>
    <message>
        <source>Free Up Space</source>
        <translation>Platz freigeben</translation>
    </message>
    <message>
        <source>Reclaimed %1.</source>
        <translation>%1 zurückgewonnen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove snapshots: %1</source>
        <translation>Schnappschüsse konnten nicht entfernt werden: %1</translation>
    </message>
    <message>
        <source>Cancelled — nothing was removed.</source>
        <translation>Abgebrochen – nichts wurde entfernt.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove snapshots.</source>
        <translation>Schnappschüsse konnten nicht entfernt werden.</translation>
    </message>
</context>
<context>
    <name>SnapshotsView</name>
    <message>
        <source>Free Up Snapshot Space</source>
        <translation>Platz von Schnappschüssen freigeben</translation>
    </message>
    <message>
        <source>%1 local snapshots</source>
        <translation>%1 lokale Schnappschüsse</translation>
    </message>
    <message>
        <source>≈ %1 reclaimable</source>
        <translation>≈ %1 freigebbar</translation>
    </message>
    <message>
        <source>Estimated purgeable space (mostly these snapshots). The exact amount freed is shown after you reclaim.</source>
        <translation>Geschätzter freigebbarer Platz (größtenteils diese Schnappschüsse). Die genaue Menge sehen Sie nach dem Freigeben.</translation>
    </message>
    <message>
        <source>No local snapshots</source>
        <translation>Keine lokalen Schnappschüsse</translation>
    </message>
    <message>
        <source>There&apos;s nothing to reclaim right now.</source>
        <translation>Im Moment gibt es nichts freizugeben.</translation>
    </message>
    <message>
        <source>Keep the most recent snapshot</source>
        <translation>Den neuesten Schnappschuss behalten</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdateView</name>
    <message>
        <source>Software Update</source>
        <translation>Softwareupdate</translation>
    </message>
    <message>
        <source>Mopwell %1 is available</source>
        <translation>Mopwell %1 ist verfügbar</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Sie sind auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Suche nach Updates fehlgeschlagen</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Updates …</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Sie haben Version %1.</translation>
    </message>
    <message>
        <source>Mopwell %1 is the newest version available.</source>
        <translation>Mopwell %1 ist die neueste verfügbare Version.</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Laden</translation>
    </message>
</context>
<context>
    <name>StartupItemsView</name>
    <message>
        <source>Startup &amp; Background Items</source>
        <translation>Start- &amp; Hintergrundobjekte</translation>
    </message>
    <message>
        <source>These run automatically in the background. Turn off anything you don&apos;t recognize — it&apos;s only stopped from launching, never deleted, and you can switch it back on any time.</source>
        <translation>Diese laufen automatisch im Hintergrund. Schalten Sie aus, was Sie nicht kennen – es wird nur nicht mehr gestartet, nie gelöscht, und Sie können es jederzeit wieder einschalten.</translation>
    </message>
    <message>
        <source>No background items</source>
        <translation>Keine Hintergrundobjekte</translation>
    </message>
    <message>
        <source>Nothing launches automatically for your account.</source>
        <translation>Für Ihr Benutzerkonto startet nichts automatisch.</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message>
        <source>Quit Mopwell</source>
        <translation>Mopwell beenden</translation>
    </message>
</context>
<context>
    <name>TargetInfoPopover</name>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Orte</translation>
    </message>
</context>
<context>
    <name>TargetRowView</name>
    <message>
        <source>Include in Clean All</source>
        <translation>In „Alles bereinigen“ einbeziehen</translation>
    </message>
    <message>
        <source>What this is and why it&apos;s safe to remove</source>
        <translation>Was das ist und warum es gefahrlos entfernt werden kann</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>Durchsuche …</translation>
    </message>
    <message>
        <source>Rescan to measure this size</source>
        <translation>Erneut durchsuchen, um die Größe zu messen</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>%1 bereinigen</translation>
    </message>
</context>
<context>
    <name>UninstallerAppHeader</name>
    <message>
        <source>Choose Different…</source>
        <translation>Andere wählen …</translation>
    </message>
</context>
<context>
    <name>UninstallerEmptyArea</name>
    <message>
        <source>Uninstall an App</source>
        <translation>App deinstallieren</translation>
    </message>
    <message>
        <source>Remove an app together with its leftover caches, preferences, and support files — all moved to the Trash, so you can undo it.</source>
        <translation>Entfernen Sie eine App samt übrig gebliebener Caches, Einstellungen und Hilfsdateien – alles wandert in den Papierkorb, Sie können es also rückgängig machen.</translation>
    </message>
    <message>
        <source>Choose App…</source>
        <translation>App wählen …</translation>
    </message>
</context>
<context>
    <name>UninstallerFooter</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>UninstallerItemList</name>
    <message>
        <source>Finding leftover files…</source>
        <translation>Suche übrig gebliebene Dateien …</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Alle abwählen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
</context>
<context>
    <name>UninstallerModel</name>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>App cache</source>
        <translation>App-Cache</translation>
    </message>
    <message>
        <source>Application support</source>
        <translation>Programmunterstützung</translation>
    </message>
    <message>
        <source>Container</source>
        <translation>Container</translation>
    </message>
    <message>
        <source>Saved state</source>
        <translation>Gesicherter Zustand</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Web storage</source>
        <translation>Webspeicher</translation>
    </message>
    <message>
        <source>WebKit data</source>
        <translation>WebKit-Daten</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>App scripts</source>
        <translation>App-Skripte</translation>
    </message>
    <message>
        <source>Group container</source>
        <translation>Gruppen-Container</translation>
    </message>
    <message>
        <source>Launch agent</source>
        <translation>Startagent</translation>
    </message>
    <message>
        <source>Menu entry</source>
        <translation>Menüeintrag</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>That&apos;s a protected system app and can&apos;t be removed.</source>
        <translation>Das ist eine geschützte System-App und kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>That app came with your system, not your home folder. Remove it with your software centre.</source>
        <translation>Diese App gehört zu Ihrem System, nicht zu Ihrem Benutzerordner. Entfernen Sie sie mit Ihrer Softwareverwaltung.</translation>
    </message>
    <message>
        <source>That&apos;s a shared folder of your home, not an app, so it can&apos;t be removed.</source>
        <translation>Das ist ein gemeinsamer Ordner Ihres Benutzerordners, keine App, und kann daher nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Uninstalled %1</source>
        <translation>%1 deinstalliert</translation>
    </message>
    <message>
        <source>Removed %1 — freed %2. Items are in the Trash.</source>
        <translation>%1 entfernt – %2 freigegeben. Die Elemente liegen im Papierkorb.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>%1 konnte nicht entfernt werden.</translation>
    </message>
</context>
<context>
    <name>UninstallerView</name>
    <message>
        <source>Uninstall an App</source>
        <translation>App deinstallieren</translation>
    </message>
    <message>
        <source>Choose App</source>
        <translation>App wählen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Apps (*.AppImage *.appimage *.desktop)</source>
        <translation>Apps (*.AppImage *.appimage *.desktop)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Applications (*.app)</source>
        <translation>Programme (*.app)</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Dev build</source>
        <translation>Entwicklerversion</translation>
    </message>
    <message>
        <source>The update feed isn&apos;t at a secure (HTTPS) address.</source>
        <translation>Der Update-Feed liegt nicht unter einer sicheren (HTTPS-)Adresse.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach the update server: %1</source>
        <translation>Der Update-Server war nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>The update information couldn&apos;t be read.</source>
        <translation>Die Update-Informationen konnten nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Mopwell</source>
        <translation>Willkommen bei Mopwell</translation>
    </message>
</context>
<context>
    <name>WelcomeWindow</name>
    <message>
        <source>Welcome to Mopwell</source>
        <translation>Willkommen bei Mopwell</translation>
    </message>
</context>
</TS>
