<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
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
        <translation>À propos de Mopwell</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher les mises à jour…</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>reclaimed all-time</source>
        <translation>récupérés au total</translation>
    </message>
    <message>
        <source>Recent cleanups</source>
        <translation>Nettoyages récents</translation>
    </message>
    <message>
        <source>Open Trash</source>
        <translation>Ouvrir la corbeille</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>No cleanups yet.</source>
        <translation>Aucun nettoyage pour l’instant.</translation>
    </message>
</context>
<context>
    <name>ActivationStep</name>
    <message>
        <source>You&apos;re all set</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>Sizing up what you can clean…</source>
        <translation>Estimation de ce que vous pouvez nettoyer…</translation>
    </message>
    <message>
        <source>Ready to free up</source>
        <translation>Prêt à libérer</translation>
    </message>
</context>
<context>
    <name>AdminShell</name>
    <message>
        <source>Authorization failed.</source>
        <translation>L’autorisation a échoué.</translation>
    </message>
    <message>
        <source>Administrator rights can&apos;t be asked for: pkexec isn&apos;t installed.</source>
        <translation>Impossible de demander les droits d’administrateur : pkexec n’est pas installé.</translation>
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
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Auto-cleanup freed %1</source>
        <translation>Le nettoyage automatique a libéré %1</translation>
    </message>
    <message>
        <source>all enabled items</source>
        <translation>tous les éléments activés</translation>
    </message>
    <message>
        <source>Everything here is a cache, log or rebuildable file that comes back automatically when it&apos;s needed.</source>
        <translation>Tout ici est un cache, un journal ou un fichier reconstructible qui revient automatiquement quand il le faut.</translation>
    </message>
    <message>
        <source>Freed %1 from %2</source>
        <translation>%1 libérés dans %2</translation>
    </message>
    <message>
        <source>Freed %1 total</source>
        <translation>%1 libérés au total</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>%1 restauré</translation>
    </message>
    <message>
        <source>Already added.</source>
        <translation>Déjà ajouté.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a target&apos;s name and what went wrong</comment>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>AppPicker</name>
    <message>
        <source>Apps in your home folder</source>
        <translation>Applications de votre dossier personnel</translation>
    </message>
    <message>
        <source>No apps found in your home folder.</source>
        <translation>Aucune application trouvée dans votre dossier personnel.</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Autre…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>AppUpdatesModel</name>
    <message>
        <source>Outdated apps and tools you installed with Homebrew or Flatpak. Mopwell never bundles installers or updates silently — it just runs your own `brew upgrade` or `flatpak update` when you ask.</source>
        <translation>Applications et outils obsolètes installés avec Homebrew ou Flatpak. Mopwell n’embarque jamais d’installeur et ne met rien à jour en silence — il lance simplement votre propre `brew upgrade` ou `flatpak update` quand vous le demandez.</translation>
    </message>
    <message>
        <source>Outdated apps you installed with Flatpak. Mopwell never bundles installers or updates silently — it just runs your own `flatpak update` when you ask.</source>
        <translation>Applications obsolètes installées avec Flatpak. Mopwell n’embarque jamais d’installeur et ne met rien à jour en silence — il lance simplement votre propre `flatpak update` quand vous le demandez.</translation>
    </message>
    <message>
        <source>Outdated apps and tools you installed with Homebrew. Mopwell never bundles installers or updates silently — it just runs your own `brew upgrade` when you ask.</source>
        <translation>Applications et outils obsolètes installés avec Homebrew. Mopwell n’embarque jamais d’installeur et ne met rien à jour en silence — il lance simplement votre propre `brew upgrade` quand vous le demandez.</translation>
    </message>
    <message>
        <source>Checking with Homebrew and Flatpak…</source>
        <translation>Vérification auprès de Homebrew et Flatpak…</translation>
    </message>
    <message>
        <source>Checking with Homebrew…</source>
        <translation>Vérification auprès de Homebrew…</translation>
    </message>
    <message>
        <source>Neither Homebrew nor Flatpak is installed</source>
        <translation>Ni Homebrew ni Flatpak n’est installé</translation>
    </message>
    <message>
        <source>Homebrew isn&apos;t installed</source>
        <translation>Homebrew n’est pas installé</translation>
    </message>
    <message>
        <source>Get Homebrew at brew.sh</source>
        <translation>Obtenir Homebrew sur brew.sh</translation>
    </message>
    <message>
        <source>Get Flatpak at flatpak.org</source>
        <translation>Obtenir Flatpak sur flatpak.org</translation>
    </message>
    <message>
        <source>Updating %1…</source>
        <translation>Mise à jour de %1…</translation>
    </message>
    <message>
        <source>Updated %1.</source>
        <translation>%1 mis à jour.</translation>
    </message>
    <message>
        <source>Couldn&apos;t update %1.</source>
        <translation>Impossible de mettre à jour %1.</translation>
    </message>
    <message>
        <source>Updating everything…</source>
        <translation>Mise à jour de tout…</translation>
    </message>
    <message>
        <source>Done.</source>
        <translation>Terminé.</translation>
    </message>
</context>
<context>
    <name>AppUpdatesView</name>
    <message>
        <source>App &amp; Tool Updates</source>
        <translation>Mises à jour d’apps et d’outils</translation>
    </message>
    <message>
        <source>Everything&apos;s up to date</source>
        <translation>Tout est à jour</translation>
    </message>
    <message>
        <source>Re-check</source>
        <translation>Revérifier</translation>
    </message>
    <message>
        <source>Update All</source>
        <translation>Tout mettre à jour</translation>
    </message>
</context>
<context>
    <name>BuildArtifactType</name>
    <message>
        <source>py caches</source>
        <translation>caches Python</translation>
    </message>
</context>
<context>
    <name>ByteCountFormatter</name>
    <message>
        <source>KB</source>
        <translation>Ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>To</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>Eo</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>Zéro Ko</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 octet</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>Folder doesn&apos;t exist.</source>
        <translation>Ce dossier n’existe pas.</translation>
    </message>
    <message>
        <source>That location is protected and can&apos;t be cleaned.</source>
        <translation>Cet emplacement est protégé et ne peut pas être nettoyé.</translation>
    </message>
    <message>
        <source>Refused (protected): %1</source>
        <translation>Refusé (protégé) : %1</translation>
    </message>
    <message>
        <source>Command exited with status %1</source>
        <translation>La commande s’est terminée avec le code %1</translation>
    </message>
</context>
<context>
    <name>CleanupCatalog</name>
    <message>
        <source>App cache files</source>
        <translation>Fichiers de cache des apps</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>Display server logs</source>
        <translation>Journaux du serveur d’affichage</translation>
    </message>
    <message>
        <source>Saved session state</source>
        <translation>État de session enregistré</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniatures</translation>
    </message>
    <message>
        <source>Flatpak app caches</source>
        <translation>Caches des applications Flatpak</translation>
    </message>
    <message>
        <source>Google Chrome cache</source>
        <translation>Cache de Google Chrome</translation>
    </message>
    <message>
        <source>Chromium cache</source>
        <translation>Cache de Chromium</translation>
    </message>
    <message>
        <source>Firefox cache</source>
        <translation>Cache de Firefox</translation>
    </message>
    <message>
        <source>Gradle caches</source>
        <translation>Caches Gradle</translation>
    </message>
    <message>
        <source>npm cache</source>
        <translation>Cache npm</translation>
    </message>
    <message>
        <source>Yarn cache</source>
        <translation>Cache Yarn</translation>
    </message>
    <message>
        <source>pnpm store</source>
        <translation>Magasin pnpm</translation>
    </message>
    <message>
        <source>uv cache</source>
        <translation>Cache uv</translation>
    </message>
    <message>
        <source>pip cache</source>
        <translation>Cache pip</translation>
    </message>
    <message>
        <source>Flutter / pub cache</source>
        <translation>Cache Flutter / pub</translation>
    </message>
    <message>
        <source>Go module cache</source>
        <translation>Cache des modules Go</translation>
    </message>
    <message>
        <source>Cargo registry cache</source>
        <translation>Cache du registre Cargo</translation>
    </message>
    <message>
        <source>Docker prune</source>
        <translation>Nettoyage Docker</translation>
    </message>
    <message>
        <source>JetBrains caches</source>
        <translation>Caches JetBrains</translation>
    </message>
    <message>
        <source>Homebrew cleanup</source>
        <translation>Nettoyage Homebrew</translation>
    </message>
    <message>
        <source>Swift / build tool caches</source>
        <translation>Caches Swift / outils de compilation</translation>
    </message>
    <message>
        <source>ML / browser-automation caches</source>
        <translation>Caches ML / automatisation de navigateur</translation>
    </message>
    <message>
        <source>node_modules folders</source>
        <translation>Dossiers node_modules</translation>
    </message>
    <message>
        <source>Next.js build output</source>
        <translation>Sortie de compilation Next.js</translation>
    </message>
    <message>
        <source>Rust target folders</source>
        <translation>Dossiers target de Rust</translation>
    </message>
    <message>
        <source>Python __pycache__</source>
        <translation>__pycache__ de Python</translation>
    </message>
    <message>
        <source>Python virtualenvs</source>
        <translation>Environnements virtuels Python</translation>
    </message>
    <message>
        <source>Cached web data — pages reload as needed</source>
        <translation>Données web en cache — les pages se rechargent au besoin</translation>
    </message>
    <message>
        <source>Reinstall with npm/yarn/pnpm install</source>
        <translation>Réinstallez avec npm/yarn/pnpm install</translation>
    </message>
    <message>
        <source>.next folders — rebuilt on next build</source>
        <translation>Dossiers .next — recréés à la prochaine compilation</translation>
    </message>
    <message>
        <source>target/ next to Cargo.toml — rebuilt with cargo build</source>
        <translation>target/ à côté de Cargo.toml — recréé avec cargo build</translation>
    </message>
    <message>
        <source>Bytecode caches — regenerated automatically</source>
        <translation>Caches de bytecode — régénérés automatiquement</translation>
    </message>
    <message>
        <source>.venv next to a manifest — recreate with pip install</source>
        <translation>.venv à côté d’un manifeste — recréez-le avec pip install</translation>
    </message>
    <message>
        <source>These are items you already moved to the Trash.</source>
        <translation>Ce sont des éléments que vous avez déjà placés dans la corbeille.</translation>
    </message>
    <message>
        <source>Old diagnostic logs. Apps write fresh ones as needed — nothing you use is lost.</source>
        <translation>D’anciens journaux de diagnostic. Les apps en écrivent de nouveaux au besoin — rien de ce que vous utilisez n’est perdu.</translation>
    </message>
    <message>
        <source>Streamed songs re-cache automatically the next time you play them.</source>
        <translation>Les morceaux écoutés en streaming se remettent en cache automatiquement la prochaine fois que vous les écoutez.</translation>
    </message>
    <message>
        <source>Apps just won&apos;t reopen last session&apos;s windows. It doesn&apos;t log you out or lose data.</source>
        <translation>Les apps ne rouvriront simplement pas les fenêtres de la dernière session. Vous n’êtes pas déconnecté et aucune donnée n’est perdue.</translation>
    </message>
    <message>
        <source>Temp copies of attachments you opened. Re-copied on demand; originals stay on the server.</source>
        <translation>Copies temporaires des pièces jointes ouvertes. Recopiées au besoin ; les originaux restent sur le serveur.</translation>
    </message>
    <message>
        <source>Docker recreates images, layers and build cache the next time you build or pull.</source>
        <translation>Docker recrée les images, les couches et le cache de compilation lors du prochain build ou pull.</translation>
    </message>
    <message>
        <source>Reinstalled instantly with npm / yarn / pnpm install.</source>
        <translation>Réinstallés en un instant avec npm / yarn / pnpm install.</translation>
    </message>
    <message>
        <source>Xcode rebuilds DerivedData on your next build.</source>
        <translation>Xcode recrée DerivedData à votre prochaine compilation.</translation>
    </message>
    <message>
        <source>A folder you added yourself — only its contents are cleared.</source>
        <translation>Un dossier que vous avez ajouté vous-même — seul son contenu est vidé.</translation>
    </message>
    <message>
        <source>Rebuilt the next time you build the project (npm install, cargo build, …).</source>
        <translation>Recréé à la prochaine compilation du projet (npm install, cargo build…).</translation>
    </message>
    <message>
        <source>Re-downloaded or rebuilt automatically the next time you build or install.</source>
        <translation>Retéléchargé ou recréé automatiquement à la prochaine compilation ou installation.</translation>
    </message>
    <message>
        <source>Apps and websites recreate these caches automatically when they next need them.</source>
        <translation>Les apps et les sites web recréent ces caches automatiquement dès qu’ils en ont de nouveau besoin.</translation>
    </message>
    <message>
        <source>Temporary files apps recreate as needed</source>
        <translation>Fichiers temporaires que les apps recréent au besoin</translation>
    </message>
    <message>
        <source>Empty the Trash</source>
        <translation>Vider la corbeille</translation>
    </message>
    <message>
        <source>Old Xorg log files</source>
        <translation>Anciens fichiers journaux de Xorg</translation>
    </message>
    <message>
        <source>Window/tab restore data — apps won&apos;t reopen last session</source>
        <translation>Données de restauration des fenêtres/onglets — les apps ne rouvriront pas la dernière session</translation>
    </message>
    <message>
        <source>Previews file managers recreate as needed</source>
        <translation>Aperçus que les gestionnaires de fichiers recréent au besoin</translation>
    </message>
    <message>
        <source>Temporary files Flatpak apps recreate as needed</source>
        <translation>Fichiers temporaires que les apps Flatpak recréent au besoin</translation>
    </message>
    <message>
        <source>Android/Gradle downloads &amp; build cache</source>
        <translation>Téléchargements et cache de compilation Android/Gradle</translation>
    </message>
    <message>
        <source>Node package cache</source>
        <translation>Cache des paquets Node</translation>
    </message>
    <message>
        <source>Yarn package cache</source>
        <translation>Cache des paquets Yarn</translation>
    </message>
    <message>
        <source>pnpm content-addressable store</source>
        <translation>Magasin adressé par contenu de pnpm</translation>
    </message>
    <message>
        <source>Python uv package cache</source>
        <translation>Cache des paquets Python uv</translation>
    </message>
    <message>
        <source>Python pip download cache</source>
        <translation>Cache des téléchargements Python pip</translation>
    </message>
    <message>
        <source>Dart/Flutter packages</source>
        <translation>Paquets Dart/Flutter</translation>
    </message>
    <message>
        <source>Downloaded Go modules</source>
        <translation>Modules Go téléchargés</translation>
    </message>
    <message>
        <source>Rust crate downloads</source>
        <translation>Crates Rust téléchargées</translation>
    </message>
    <message>
        <source>Dangling images, stopped containers, build cache</source>
        <translation>Images orphelines, conteneurs arrêtés, cache de compilation</translation>
    </message>
    <message>
        <source>IntelliJ/PyCharm/etc. caches</source>
        <translation>Caches d’IntelliJ, PyCharm, etc.</translation>
    </message>
    <message>
        <source>Old versions &amp; download cache</source>
        <translation>Anciennes versions et cache des téléchargements</translation>
    </message>
    <message>
        <source>SwiftPM, TypeScript, node-gyp</source>
        <translation>Caches de SwiftPM, TypeScript et node-gyp</translation>
    </message>
    <message>
        <source>puppeteer, huggingface, whisper, selenium</source>
        <translation>puppeteer, huggingface, whisper et selenium</translation>
    </message>
</context>
<context>
    <name>CleanupCategory</name>
    <message>
        <source>Recommended</source>
        <translation>Recommandé</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>Caches des navigateurs</translation>
    </message>
    <message>
        <source>Developer caches</source>
        <translation>Caches de développement</translation>
    </message>
    <message>
        <source>Build artifacts</source>
        <translation>Artefacts de compilation</translation>
    </message>
    <message>
        <source>Custom folders</source>
        <translation>Dossiers personnalisés</translation>
    </message>
</context>
<context>
    <name>ConfirmSheet</name>
    <message>
        <source>%1 item</source>
        <translation>%1 élément</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 éléments</translation>
    </message>
    <message>
        <source>Frees about %1. This data regenerates automatically.</source>
        <translation>Libère environ %1. Ces données se régénèrent automatiquement.</translation>
    </message>
    <message>
        <source>Will clear</source>
        <translation>Sera vidé</translation>
    </message>
    <message>
        <source>Delete permanently (skip the Trash)</source>
        <translation>Supprimer définitivement (sans passer par la corbeille)</translation>
    </message>
    <message>
        <source>Useful for very large build folders — frees the space immediately, but can&apos;t be recovered.</source>
        <translation>Utile pour les très gros dossiers de compilation — libère l’espace immédiatement, mais sans retour possible.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Nettoyer</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>Nettoyer %1</translation>
    </message>
</context>
<context>
    <name>ConfirmWindowView</name>
    <message>
        <source>Confirm Cleanup</source>
        <translation>Confirmer le nettoyage</translation>
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
        <translation>Afficher dans le Finder</translation>
    </message>
    <message>
        <source>Reveal project in Finder</source>
        <translation>Afficher le projet dans le Finder</translation>
    </message>
    <message>
        <source>Open Login Items…</source>
        <translation>Ouvrir les éléments de connexion…</translation>
    </message>
    <message>
        <source>Double-tap to open</source>
        <translation>Toucher deux fois pour ouvrir</translation>
    </message>
    <message>
        <source>App login items are managed by macOS.</source>
        <translation>Les éléments de connexion des apps sont gérés par macOS.</translation>
    </message>
    <message>
        <source>Local snapshots are temporary copies Time Machine keeps so it can back up when your drive isn&apos;t connected. macOS frees them automatically under pressure — removing them reclaims that space now. Your Time Machine backups on external or network drives are not touched.</source>
        <translation>Les instantanés locaux sont des copies temporaires que Time Machine conserve pour sauvegarder lorsque votre disque n’est pas connecté. macOS les libère automatiquement en cas de besoin — les supprimer récupère cet espace tout de suite. Vos sauvegardes Time Machine sur des disques externes ou réseau ne sont pas touchées.</translation>
    </message>
    <message>
        <source>Snapshots removed — macOS may report the freed space in a moment.</source>
        <translation>Instantanés supprimés — macOS peut indiquer l’espace libéré dans un instant.</translation>
    </message>
    <message>
        <source>File Manager</source>
        <translation>Gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Show project in File Manager</source>
        <translation>Afficher le projet dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Open Startup Settings…</source>
        <translation>Ouvrir les réglages de démarrage…</translation>
    </message>
    <message>
        <source>Double-click to open</source>
        <translation>Double-cliquer pour ouvrir</translation>
    </message>
    <message>
        <source>Startup apps for all users are managed by your desktop.</source>
        <translation>Les applications de démarrage de tous les utilisateurs sont gérées par votre bureau.</translation>
    </message>
    <message>
        <source>Snapshots are copies of your system that Snapper keeps on Btrfs so you can undo changes. Old ones hold on to space — removing them reclaims it now. Your backups on other drives are not touched.</source>
        <translation>Les instantanés sont des copies de votre système que Snapper conserve sur Btrfs pour que vous puissiez annuler des modifications. Les anciens occupent de l’espace — les supprimer le récupère tout de suite. Vos sauvegardes sur d’autres disques ne sont pas touchées.</translation>
    </message>
    <message>
        <source>Snapshots removed — the file system may report the freed space in a moment.</source>
        <translation>Instantanés supprimés — le système de fichiers peut indiquer l’espace libéré dans un instant.</translation>
    </message>
    <message>
        <source>Free up space from caches and junk you don&apos;t need — cleaned safely, right from your menu bar.</source>
        <translation>Libérez l’espace occupé par les caches et les fichiers inutiles — nettoyé en toute sécurité, directement depuis la barre des menus.</translation>
    </message>
    <message>
        <source>How do you use this Mac?</source>
        <translation>Comment utilisez-vous ce Mac ?</translation>
    </message>
    <message>
        <source>Open Mopwell from the menu bar any time to clean up or explore the Disk Map.</source>
        <translation>Ouvrez Mopwell depuis la barre des menus à tout moment pour nettoyer ou explorer la carte du disque.</translation>
    </message>
    <message>
        <source>Click the drive icon in your menu bar any time to free up space or open the Disk Map.</source>
        <translation>Cliquez à tout moment sur l’icône du disque dans la barre des menus pour libérer de l’espace ou ouvrir la carte du disque.</translation>
    </message>
    <message>
        <source>Free up space from caches and junk you don&apos;t need — cleaned safely, right from your panel.</source>
        <translation>Libérez l’espace occupé par les caches et les fichiers inutiles — nettoyé en toute sécurité, directement depuis votre barre de tâches.</translation>
    </message>
    <message>
        <source>How do you use this computer?</source>
        <translation>Comment utilisez-vous cet ordinateur ?</translation>
    </message>
    <message>
        <source>Open Mopwell from its icon in the panel any time to clean up or explore the Disk Map.</source>
        <translation>Ouvrez Mopwell depuis son icône dans la barre de tâches à tout moment pour nettoyer ou explorer la carte du disque.</translation>
    </message>
    <message>
        <source>Click Mopwell&apos;s icon in your panel any time to free up space or open the Disk Map.</source>
        <translation>Cliquez à tout moment sur l’icône de Mopwell dans la barre de tâches pour libérer de l’espace ou ouvrir la carte du disque.</translation>
    </message>
    <message>
        <source>Menu bar shows</source>
        <translation>La barre des menus affiche</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Icône seule</translation>
    </message>
    <message>
        <source>Everyday caches, one tap.</source>
        <translation>Les caches du quotidien, en un geste.</translation>
    </message>
    <message>
        <source>Also Xcode, npm, Docker &amp; node_modules.</source>
        <translation>Aussi Xcode, npm, Docker et node_modules.</translation>
    </message>
    <message>
        <source>Reveals Xcode, npm, Docker and other dev caches, plus node_modules and build folders in your projects.</source>
        <translation>Affiche les caches de Xcode, npm, Docker et d’autres outils de développement, ainsi que les dossiers node_modules et de compilation de vos projets.</translation>
    </message>
    <message>
        <source>Status icon tooltip shows</source>
        <translation>L’infobulle de l’icône affiche</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Rien</translation>
    </message>
    <message>
        <source>Everyday caches, one click.</source>
        <translation>Les caches du quotidien, en un clic.</translation>
    </message>
    <message>
        <source>Also npm, Docker, Gradle &amp; node_modules.</source>
        <translation>Aussi npm, Docker, Gradle et node_modules.</translation>
    </message>
    <message>
        <source>Reveals npm, Docker, Gradle and other dev caches, plus node_modules and build folders in your projects.</source>
        <translation>Affiche les caches de npm, Docker, Gradle et d’autres outils de développement, ainsi que les dossiers node_modules et de compilation de vos projets.</translation>
    </message>
</context>
<context>
    <name>DeveloperSections</name>
    <message>
        <source>Developer mode</source>
        <translation>Mode développeur</translation>
    </message>
    <message>
        <source>Show developer cleanups</source>
        <translation>Afficher les nettoyages pour développeurs</translation>
    </message>
    <message>
        <source>Sort cleanups by size (largest first)</source>
        <translation>Trier les nettoyages par taille (les plus gros d’abord)</translation>
    </message>
    <message>
        <source>Tools like Project Cleanup and App &amp; Tool Updates are in the panel&apos;s “More” menu.</source>
        <translation>Les outils comme Nettoyage de projets et Mises à jour d’apps et d’outils se trouvent dans le menu « Plus » du panneau.</translation>
    </message>
    <message>
        <source>Build-folder cleanup</source>
        <translation>Nettoyage des dossiers de compilation</translation>
    </message>
    <message>
        <source>Only clean folders older than</source>
        <translation>Ne nettoyer que les dossiers de plus de</translation>
    </message>
    <message>
        <source>Skips node_modules / build folders modified more recently — protects projects you&apos;re actively working on.</source>
        <translation>Ignore les dossiers node_modules et de compilation modifiés plus récemment — protège les projets sur lesquels vous travaillez.</translation>
    </message>
    <message>
        <source>Never touch these (pinned)</source>
        <translation>Ne jamais toucher (épinglés)</translation>
    </message>
    <message>
        <source>No pinned folders. Pin a project to keep its build folders off the cleanup list.</source>
        <translation>Aucun dossier épinglé. Épinglez un projet pour retirer ses dossiers de compilation de la liste de nettoyage.</translation>
    </message>
    <message>
        <source>Pin Folder…</source>
        <translation>Épingler un dossier…</translation>
    </message>
    <message>
        <source>Project folders to scan</source>
        <translation>Dossiers de projets à analyser</translation>
    </message>
    <message>
        <source>Where your code lives. Mopwell looks &lt;i&gt;inside&lt;/i&gt; these for regenerable build output (node_modules, .next, target, …) to offer up in Project Cleanup. The folders themselves are never removed — only the build artifacts found within them.</source>
        <translation>Là où se trouve votre code. Mopwell cherche &lt;i&gt;dans&lt;/i&gt; ces dossiers les produits de compilation régénérables (node_modules, .next, target, …) à proposer dans Nettoyage de projets. Les dossiers eux-mêmes ne sont jamais supprimés — seulement les artefacts de compilation qu’ils contiennent.</translation>
    </message>
    <message>
        <source>No project folders — add the folders where your code lives.</source>
        <translation>Aucun dossier de projet — ajoutez les dossiers où se trouve votre code.</translation>
    </message>
    <message>
        <source>Add Project Folder…</source>
        <translation>Ajouter un dossier de projet…</translation>
    </message>
</context>
<context>
    <name>DiskMap</name>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>masqué</translation>
    </message>
    <message>
        <source>(smaller items)</source>
        <translation>(petits éléments)</translation>
    </message>
</context>
<context>
    <name>DiskMapArea</name>
    <message>
        <source>Disk usage treemap</source>
        <translation>Carte arborescente de l’occupation du disque</translation>
    </message>
    <message>
        <source>No folder scanned</source>
        <translation>Aucun dossier analysé</translation>
    </message>
    <message>
        <source>%1, %2 items, %3. Use the list on the right to browse items.</source>
        <translation>%1, %2 éléments, %3. Utilisez la liste à droite pour parcourir les éléments.</translation>
    </message>
    <message>
        <source>Nothing to show here</source>
        <translation>Rien à afficher ici</translation>
    </message>
</context>
<context>
    <name>DiskMapDetailBar</name>
    <message>
        <source>Hidden</source>
        <translation>Masqué</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
</context>
<context>
    <name>DiskMapLegend</name>
    <message>
        <source>Recent</source>
        <translation>Récent</translation>
    </message>
    <message>
        <source>Over a year</source>
        <translation>Plus d’un an</translation>
    </message>
</context>
<context>
    <name>DiskMapModel</name>
    <message>
        <source>Scanning… %1</source>
        <translation>Analyse… %1</translation>
    </message>
</context>
<context>
    <name>DiskMapStartScreen</name>
    <message>
        <source>What do you want to scan?</source>
        <translation>Que voulez-vous analyser ?</translation>
    </message>
    <message>
        <source>Pick a location to map what&apos;s using its space.</source>
        <translation>Choisissez un emplacement pour voir ce qui occupe son espace.</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
</context>
<context>
    <name>DiskMapToolbar</name>
    <message>
        <source>Scan</source>
        <translation>Analyser</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Réanalyser</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Âge</translation>
    </message>
    <message>
        <source>Color tiles by file type or by age</source>
        <translation>Colorer les tuiles par type de fichier ou par âge</translation>
    </message>
</context>
<context>
    <name>DiskMapView</name>
    <message>
        <source>Choose a folder to map</source>
        <translation>Choisissez un dossier à cartographier</translation>
    </message>
    <message>
        <source>Move “%1” to the Trash?</source>
        <translation>Placer « %1 » dans la corbeille ?</translation>
    </message>
    <message>
        <source>Frees %1. You can put it back from the Trash.</source>
        <translation>Libère %1. Vous pourrez le remettre depuis la corbeille.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Analyser</translation>
    </message>
</context>
<context>
    <name>DiskNodeListModel</name>
    <message>
        <source>%1, %2 percent</source>
        <translation>%1, %2 pour cent</translation>
    </message>
</context>
<context>
    <name>DiskNodeMenu</name>
    <message>
        <source>Zoom In</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Smaller items folded together</source>
        <translation>Petits éléments regroupés</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
</context>
<context>
    <name>DiskUsageRingView</name>
    <message>
        <source>used</source>
        <translation>utilisé</translation>
    </message>
</context>
<context>
    <name>FileCategory</name>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archives</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>Caches et journaux</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
</context>
<context>
    <name>FileListRow</name>
    <message>
        <source>%1 copies · %2 each</source>
        <translation>%1 copies · %2 chacune</translation>
    </message>
    <message>
        <source>save %1</source>
        <translation>économiser %1</translation>
    </message>
</context>
<context>
    <name>FolderListSection</name>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>GeneralSection</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Available once Mopwell is installed.</source>
        <translation>Disponible une fois Mopwell installé.</translation>
    </message>
    <message>
        <source>Refresh every</source>
        <translation>Actualiser toutes les</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Percentage used</source>
        <translation>Pourcentage utilisé</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Espace libre</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Relaunch to apply the new language.</source>
        <translation>Relancez pour appliquer la nouvelle langue.</translation>
    </message>
    <message>
        <source>Relaunch</source>
        <translation>Relancer</translation>
    </message>
</context>
<context>
    <name>HistoryRow</name>
    <message>
        <source>Restored</source>
        <translation>Restauré</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Remettre</translation>
    </message>
    <message>
        <source>Restore these items from the Trash</source>
        <translation>Restaurer ces éléments depuis la corbeille</translation>
    </message>
</context>
<context>
    <name>LargeFilesFooter</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 sélectionné(s)</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
</context>
<context>
    <name>LargeFilesToolbar</name>
    <message>
        <source>Scan</source>
        <translation>Analyser</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Plus gros</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
</context>
<context>
    <name>LargeFilesView</name>
    <message>
        <source>Find large &amp; duplicate files</source>
        <translation>Trouver les gros fichiers et les doublons</translation>
    </message>
    <message>
        <source>Pick a folder to scan for big files and byte-identical duplicates you can safely remove.</source>
        <translation>Choisissez un dossier où chercher les gros fichiers et les doublons identiques octet pour octet que vous pouvez supprimer sans risque.</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>No files found</source>
        <translation>Aucun fichier trouvé</translation>
    </message>
    <message>
        <source>Nothing in this folder is large enough to list.</source>
        <translation>Rien dans ce dossier n’est assez gros pour être listé.</translation>
    </message>
    <message>
        <source>No duplicates found</source>
        <translation>Aucun doublon trouvé</translation>
    </message>
    <message>
        <source>Duplicates are byte-identical copies — unique files don&apos;t appear here.</source>
        <translation>Les doublons sont des copies identiques octet pour octet — les fichiers uniques n’apparaissent pas ici.</translation>
    </message>
    <message>
        <source>Choose a folder to scan</source>
        <translation>Choisissez un dossier à analyser</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Analyser</translation>
    </message>
</context>
<context>
    <name>LoginItem</name>
    <message>
        <source>Starting at login is only available in the installed application.</source>
        <translation>Le lancement à l’ouverture de session n’est disponible que dans l’application installée.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove Mopwell from the programs that start at login: %1</source>
        <translation>Impossible de retirer Mopwell des programmes lancés à l’ouverture de session : %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t find Mopwell&apos;s own program file to start at login.</source>
        <translation>Impossible de trouver le fichier programme de Mopwell à lancer à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Couldn&apos;t add Mopwell to the programs that start at login: %1</source>
        <translation>Impossible d’ajouter Mopwell aux programmes lancés à l’ouverture de session : %1</translation>
    </message>
</context>
<context>
    <name>MenuBarCoachMark</name>
    <message>
        <source>Mopwell lives up here</source>
        <translation>Mopwell se trouve ici</translation>
    </message>
    <message>
        <source>Mopwell lives down here</source>
        <translation>Mopwell se trouve ici, en bas</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Compris</translation>
    </message>
</context>
<context>
    <name>MenuPanelModel</name>
    <message>
        <source>Scanning…</source>
        <translation>Analyse…</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>à l’instant</translation>
    </message>
    <message>
        <source>%1s ago</source>
        <translation>il y a %1 s</translation>
    </message>
    <message>
        <source>%1m ago</source>
        <translation>il y a %1 min</translation>
    </message>
    <message>
        <source>%1h ago</source>
        <translation>il y a %1 h</translation>
    </message>
    <message>
        <source>free of %1</source>
        <translation>libres sur %1</translation>
    </message>
    <message>
        <source>%1 used</source>
        <translation>%1 utilisés</translation>
    </message>
</context>
<context>
    <name>MenuPanelView</name>
    <message>
        <source>Rescan sizes</source>
        <translation>Recalculer les tailles</translation>
    </message>
</context>
<context>
    <name>MoreMenu</name>
    <message>
        <source>Project Cleanup</source>
        <translation>Nettoyage de projets</translation>
    </message>
    <message>
        <source>Free Up Snapshots</source>
        <translation>Libérer les instantanés</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>Éléments de démarrage</translation>
    </message>
    <message>
        <source>App &amp; Tool Updates</source>
        <translation>Mises à jour d’apps et d’outils</translation>
    </message>
</context>
<context>
    <name>NotificationCenter</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>Clean Up Now</source>
        <translation>Nettoyer maintenant</translation>
    </message>
    <message>
        <source>Low disk space</source>
        <translation>Espace disque faible</translation>
    </message>
    <message>
        <source>Only %1 available. Tap “Clean Up Now” to free up space.</source>
        <translation>Seulement %1 disponibles. Touchez « Nettoyer maintenant » pour libérer de l’espace.</translation>
    </message>
    <message>
        <source>Mopwell cleaned up</source>
        <translation>Mopwell a fait le ménage</translation>
    </message>
    <message>
        <source>Freed %1 automatically. Items are in the Trash.</source>
        <translation>%1 libérés automatiquement. Les éléments sont dans la corbeille.</translation>
    </message>
    <message>
        <source>Nothing to clean — you&apos;re already tidy.</source>
        <translation>Rien à nettoyer — tout est déjà en ordre.</translation>
    </message>
    <message>
        <source>Only %1 available. Click “Clean Up Now” to free up space.</source>
        <translation>Seulement %1 disponibles. Cliquez sur « Nettoyer maintenant » pour libérer de l’espace.</translation>
    </message>
</context>
<context>
    <name>OnboardingView</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Skip for now</source>
        <translation>Passer pour l’instant</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Commencer</translation>
    </message>
</context>
<context>
    <name>OptionalCaches</name>
    <message>
        <source>Streamed songs re-buffer next time. Often many GB.</source>
        <translation>Les morceaux écoutés en streaming se rechargent la fois suivante. Souvent plusieurs Go.</translation>
    </message>
    <message>
        <source>Often the biggest win. Streamed songs re-buffer next time.</source>
        <translation>Souvent le plus gros gain. Les morceaux écoutés en streaming se rechargent la fois suivante.</translation>
    </message>
    <message>
        <source>Apps won&apos;t reopen their last windows/tabs.</source>
        <translation>Les apps ne rouvriront pas leurs dernières fenêtres ou onglets.</translation>
    </message>
    <message>
        <source>Apps won&apos;t reopen their last windows. Doesn&apos;t log you out.</source>
        <translation>Les apps ne rouvriront pas leurs dernières fenêtres. Vous restez connecté.</translation>
    </message>
    <message>
        <source>Temp copies of opened attachments. Originals stay safe.</source>
        <translation>Copies temporaires des pièces jointes ouvertes. Les originaux restent intacts.</translation>
    </message>
</context>
<context>
    <name>PackageRow</name>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
</context>
<context>
    <name>PanelFooter</name>
    <message>
        <source>reclaimable</source>
        <translation>récupérable</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Nettoyer</translation>
    </message>
    <message>
        <source>Disk Map</source>
        <translation>Carte du disque</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Gros fichiers</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>PersonalizeStep</name>
    <message>
        <source>This just decides how much detail you see — you can switch any time.</source>
        <translation>Cela détermine seulement le niveau de détail affiché — vous pouvez changer à tout moment.</translation>
    </message>
    <message>
        <source>Just clean up</source>
        <translation>Juste nettoyer</translation>
    </message>
    <message>
        <source>I&apos;m a developer</source>
        <translation>Je suis développeur</translation>
    </message>
    <message>
        <source>RECLAIM A LITTLE MORE — OPTIONAL</source>
        <translation>RÉCUPÉRER UN PEU PLUS — FACULTATIF</translation>
    </message>
</context>
<context>
    <name>ProgressMarks</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
</context>
<context>
    <name>ProjectCleanupFooter</name>
    <message>
        <source>Deselect All</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>%1 of %2 selected · %3 total</source>
        <translation>%1 sur %2 sélectionnés · %3 au total</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
</context>
<context>
    <name>ProjectCleanupModel</name>
    <message>
        <source>1 project folder</source>
        <translation>1 dossier de projet</translation>
    </message>
    <message>
        <source>%1 project folders</source>
        <translation>%1 dossiers de projet</translation>
    </message>
</context>
<context>
    <name>ProjectCleanupToolbar</name>
    <message>
        <source>Rescan</source>
        <translation>Réanalyser</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Scanning… %1 found</source>
        <translation>Analyse… %1 trouvés</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grouper</translation>
    </message>
    <message>
        <source>Group build folders by project</source>
        <translation>Grouper les dossiers de compilation par projet</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Oldest</source>
        <translation>Plus anciens</translation>
    </message>
</context>
<context>
    <name>ProjectCleanupView</name>
    <message>
        <source>Project Cleanup</source>
        <translation>Nettoyage de projets</translation>
    </message>
    <message>
        <source>Scanning %1… %2 found</source>
        <translation>Analyse de %1… %2 trouvés</translation>
    </message>
    <message>
        <source>No build folders found</source>
        <translation>Aucun dossier de compilation trouvé</translation>
    </message>
    <message>
        <source>Nothing to clean under %1</source>
        <translation>Rien à nettoyer dans %1</translation>
    </message>
    <message>
        <source>Choose a folder to scan</source>
        <translation>Choisissez un dossier à analyser</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Analyser</translation>
    </message>
    <message>
        <source>Move 1 build folder to the Trash?</source>
        <translation>Placer 1 dossier de compilation dans la corbeille ?</translation>
    </message>
    <message>
        <source>Move %1 build folders to the Trash?</source>
        <translation>Placer %1 dossiers de compilation dans la corbeille ?</translation>
    </message>
    <message>
        <source>They&apos;ll go to the Trash, so you can put them back. Build folders regenerate next time you build.</source>
        <translation>Ils iront dans la corbeille, vous pourrez donc les remettre. Les dossiers de compilation se régénèrent à la prochaine compilation.</translation>
    </message>
    <message>
        <source>Move %1 to Trash</source>
        <translation>Placer %1 dans la corbeille</translation>
    </message>
</context>
<context>
    <name>ProjectDirRow</name>
    <message>
        <source>Never suggest this folder</source>
        <translation>Ne jamais proposer ce dossier</translation>
    </message>
</context>
<context>
    <name>ProjectDirText</name>
    <message>
        <source>today</source>
        <translation>aujourd’hui</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>hier</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>il y a %1 jours</translation>
    </message>
    <message>
        <source>%1 mo ago</source>
        <translation>il y a %1 mois</translation>
    </message>
    <message>
        <source>%1 yr ago</source>
        <translation>il y a %1 an(s)</translation>
    </message>
</context>
<context>
    <name>ProjectGroupHeader</name>
    <message>
        <source>Select all in this project</source>
        <translation>Tout sélectionner dans ce projet</translation>
    </message>
</context>
<context>
    <name>ProjectKindChips</name>
    <message>
        <source>Clear</source>
        <translation>Réinitialiser</translation>
    </message>
</context>
<context>
    <name>ProjectRowMenu</name>
    <message>
        <source>Never Suggest This Folder</source>
        <translation>Ne jamais proposer ce dossier</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Mopwell Settings</source>
        <translation>Réglages de Mopwell</translation>
    </message>
    <message>
        <source>Confirm Cleanup</source>
        <translation>Confirmer le nettoyage</translation>
    </message>
    <message>
        <source>Disk Map</source>
        <translation>Carte du disque</translation>
    </message>
    <message>
        <source>Large &amp; Duplicate Files</source>
        <translation>Gros fichiers et doublons</translation>
    </message>
    <message>
        <source>Project Cleanup</source>
        <translation>Nettoyage de projets</translation>
    </message>
    <message>
        <source>Startup &amp; Background Items</source>
        <translation>Éléments de démarrage et d’arrière-plan</translation>
    </message>
    <message>
        <source>Free Up Snapshot Space</source>
        <translation>Libérer l’espace des instantanés</translation>
    </message>
    <message>
        <source>App &amp; Tool Updates</source>
        <translation>Mises à jour d’apps et d’outils</translation>
    </message>
    <message>
        <source>Uninstall an App</source>
        <translation>Désinstaller une application</translation>
    </message>
    <message>
        <source>About Mopwell</source>
        <translation>À propos de Mopwell</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour de logiciels</translation>
    </message>
</context>
<context>
    <name>SafetyStep</name>
    <message>
        <source>Only ever clears regenerable files</source>
        <translation>N’efface que des fichiers régénérables</translation>
    </message>
    <message>
        <source>Caches and build output — never your documents, photos, or code.</source>
        <translation>Caches et produits de compilation — jamais vos documents, photos ou code.</translation>
    </message>
    <message>
        <source>Shows you everything first</source>
        <translation>Vous montre tout d’abord</translation>
    </message>
    <message>
        <source>Exactly what&apos;s removed, and how much space, before you confirm.</source>
        <translation>Exactement ce qui est supprimé, et combien d’espace, avant que vous confirmiez.</translation>
    </message>
    <message>
        <source>Recoverable by default</source>
        <translation>Récupérable par défaut</translation>
    </message>
    <message>
        <source>Items move to the Trash, so anything can be brought back.</source>
        <translation>Les éléments vont dans la corbeille, tout peut donc être récupéré.</translation>
    </message>
    <message>
        <source>Safe by design</source>
        <translation>Sûr par conception</translation>
    </message>
    <message>
        <source>Mopwell is built so you never lose anything that matters.</source>
        <translation>Mopwell est conçu pour que vous ne perdiez jamais rien d’important.</translation>
    </message>
    <message>
        <source>Move cleaned items to the Trash</source>
        <translation>Placer les éléments nettoyés dans la corbeille</translation>
    </message>
    <message>
        <source>Recommended — recover anything you change your mind about.</source>
        <translation>Recommandé — récupérez tout ce que vous regrettez.</translation>
    </message>
</context>
<context>
    <name>ScanPreset</name>
    <message>
        <source>Home</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Téléchargements</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Whole Disk</source>
        <translation>Disque entier</translation>
    </message>
    <message>
        <source>Flatpak Apps</source>
        <translation>Apps Flatpak</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>Données des apps</translation>
    </message>
</context>
<context>
    <name>ScanningText</name>
    <message>
        <source>Scanning… %1 files</source>
        <translation>Analyse… %1 fichiers</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Any age</source>
        <translation>N’importe quel âge</translation>
    </message>
    <message>
        <source>%1 day</source>
        <translation>%1 jour</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 jours</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Mopwell Settings</source>
        <translation>Réglages de Mopwell</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Check for updates automatically</source>
        <translation>Rechercher les mises à jour automatiquement</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher les mises à jour…</translation>
    </message>
    <message>
        <source>Automatic cleanup</source>
        <translation>Nettoyage automatique</translation>
    </message>
    <message>
        <source>Clean caches automatically</source>
        <translation>Nettoyer les caches automatiquement</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Chaque jour</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Chaque semaine</translation>
    </message>
    <message>
        <source>Mopwell only cleans when you ask.</source>
        <translation>Mopwell ne nettoie que lorsque vous le demandez.</translation>
    </message>
    <message>
        <source>Quietly clears recoverable caches &amp; logs to the Trash, then notifies you. Never empties the Trash or touches build folders.</source>
        <translation>Place discrètement les caches et journaux récupérables dans la corbeille, puis vous prévient. Ne vide jamais la corbeille et ne touche pas aux dossiers de compilation.</translation>
    </message>
    <message>
        <source>Low-space alert</source>
        <translation>Alerte d’espace faible</translation>
    </message>
    <message>
        <source>Notify when low on space</source>
        <translation>Prévenir quand l’espace manque</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>Show welcome screen…</source>
        <translation>Afficher l’écran de bienvenue…</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>Move cleaned items to the Trash</source>
        <translation>Placer les éléments nettoyés dans la corbeille</translation>
    </message>
    <message>
        <source>Recoverable — items go to the Trash. (CLI tools like Homebrew/Docker still delete directly.)</source>
        <translation>Récupérable — les éléments vont dans la corbeille. (Les outils en ligne de commande comme Homebrew/Docker suppriment toujours directement.)</translation>
    </message>
    <message>
        <source>Permanent — items are deleted immediately.</source>
        <translation>Définitif — les éléments sont supprimés immédiatement.</translation>
    </message>
    <message>
        <source>Extra system caches</source>
        <translation>Caches système supplémentaires</translation>
    </message>
    <message>
        <source>Custom folders to clean</source>
        <translation>Dossiers personnalisés à nettoyer</translation>
    </message>
    <message>
        <source>Extra folders you want Mopwell to empty when cleaning — e.g. a Downloads or scratch folder. Their contents are removed (to the Trash). Add only folders whose contents you&apos;re happy to clear.</source>
        <translation>Des dossiers supplémentaires que Mopwell doit vider lors du nettoyage — par exemple un dossier Téléchargements ou de brouillons. Leur contenu est supprimé (vers la corbeille). N’ajoutez que des dossiers dont vous acceptez de vider le contenu.</translation>
    </message>
    <message>
        <source>No custom folders added.</source>
        <translation>Aucun dossier personnalisé ajouté.</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
</context>
<context>
    <name>SimpleGroup</name>
    <message>
        <source>System &amp; app caches</source>
        <translation>Caches du système et des apps</translation>
    </message>
    <message>
        <source>Browser caches</source>
        <translation>Caches des navigateurs</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Corbeille</translation>
    </message>
</context>
<context>
    <name>SimpleGroupRow</name>
    <message>
        <source>Include in clean-up</source>
        <translation>Inclure dans le nettoyage</translation>
    </message>
    <message>
        <source>Include %1 in clean-up</source>
        <translation>Inclure %1 dans le nettoyage</translation>
    </message>
</context>
<context>
    <name>SnapshotRow</name>
    <message>
        <source>Kept</source>
        <translation>Conservé</translation>
    </message>
    <message>
        <source>Will remove</source>
        <translation>Sera supprimé</translation>
    </message>
</context>
<context>
    <name>SnapshotsModel</name>
    <message>
        <source>Free Up Space (%1)</source>
        <translation>Libérer de l’espace (%1)</translation>
    </message>
    <message>
        <source>Free Up Space</source>
        <translation>Libérer de l’espace</translation>
    </message>
    <message>
        <source>Reclaimed %1.</source>
        <translation>%1 récupérés.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove snapshots: %1</source>
        <translation>Impossible de supprimer les instantanés : %1</translation>
    </message>
    <message>
        <source>Cancelled — nothing was removed.</source>
        <translation>Annulé — rien n’a été supprimé.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove snapshots.</source>
        <translation>Impossible de supprimer les instantanés.</translation>
    </message>
</context>
<context>
    <name>SnapshotsView</name>
    <message>
        <source>Free Up Snapshot Space</source>
        <translation>Libérer l’espace des instantanés</translation>
    </message>
    <message>
        <source>%1 local snapshots</source>
        <translation>%1 instantanés locaux</translation>
    </message>
    <message>
        <source>≈ %1 reclaimable</source>
        <translation>≈ %1 récupérables</translation>
    </message>
    <message>
        <source>Estimated purgeable space (mostly these snapshots). The exact amount freed is shown after you reclaim.</source>
        <translation>Espace purgeable estimé (surtout ces instantanés). La quantité exacte libérée s’affiche après la récupération.</translation>
    </message>
    <message>
        <source>No local snapshots</source>
        <translation>Aucun instantané local</translation>
    </message>
    <message>
        <source>There&apos;s nothing to reclaim right now.</source>
        <translation>Il n’y a rien à récupérer pour l’instant.</translation>
    </message>
    <message>
        <source>Keep the most recent snapshot</source>
        <translation>Conserver l’instantané le plus récent</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdateView</name>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour de logiciels</translation>
    </message>
    <message>
        <source>Mopwell %1 is available</source>
        <translation>Mopwell %1 est disponible</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Vous êtes à jour</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Impossible de rechercher les mises à jour</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <translation>Vous avez la version %1.</translation>
    </message>
    <message>
        <source>Mopwell %1 is the newest version available.</source>
        <translation>Mopwell %1 est la version la plus récente.</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
</context>
<context>
    <name>StartupItemsView</name>
    <message>
        <source>Startup &amp; Background Items</source>
        <translation>Éléments de démarrage et d’arrière-plan</translation>
    </message>
    <message>
        <source>These run automatically in the background. Turn off anything you don&apos;t recognize — it&apos;s only stopped from launching, never deleted, and you can switch it back on any time.</source>
        <translation>Ces éléments s’exécutent automatiquement en arrière-plan. Désactivez ce que vous ne reconnaissez pas — ils ne sont plus lancés, jamais supprimés, et vous pouvez les réactiver à tout moment.</translation>
    </message>
    <message>
        <source>No background items</source>
        <translation>Aucun élément d’arrière-plan</translation>
    </message>
    <message>
        <source>Nothing launches automatically for your account.</source>
        <translation>Rien ne se lance automatiquement pour votre compte.</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message>
        <source>Quit Mopwell</source>
        <translation>Quitter Mopwell</translation>
    </message>
</context>
<context>
    <name>TargetInfoPopover</name>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Emplacements</translation>
    </message>
</context>
<context>
    <name>TargetRowView</name>
    <message>
        <source>Include in Clean All</source>
        <translation>Inclure dans « Tout nettoyer »</translation>
    </message>
    <message>
        <source>What this is and why it&apos;s safe to remove</source>
        <translation>Ce que c’est et pourquoi on peut le supprimer sans risque</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>Analyse…</translation>
    </message>
    <message>
        <source>Rescan to measure this size</source>
        <translation>Réanalyser pour mesurer cette taille</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>Nettoyer %1</translation>
    </message>
</context>
<context>
    <name>UninstallerAppHeader</name>
    <message>
        <source>Choose Different…</source>
        <translation>Choisir une autre…</translation>
    </message>
</context>
<context>
    <name>UninstallerEmptyArea</name>
    <message>
        <source>Uninstall an App</source>
        <translation>Désinstaller une application</translation>
    </message>
    <message>
        <source>Remove an app together with its leftover caches, preferences, and support files — all moved to the Trash, so you can undo it.</source>
        <translation>Supprimez une application avec ses caches, préférences et fichiers de support restants — tout va dans la corbeille, vous pouvez donc annuler.</translation>
    </message>
    <message>
        <source>Choose App…</source>
        <translation>Choisir une application…</translation>
    </message>
</context>
<context>
    <name>UninstallerFooter</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 sélectionné(s)</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
</context>
<context>
    <name>UninstallerItemList</name>
    <message>
        <source>Finding leftover files…</source>
        <translation>Recherche des fichiers restants…</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 trouvés</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>UninstallerModel</name>
    <message>
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>App cache</source>
        <translation>Cache de l’application</translation>
    </message>
    <message>
        <source>Application support</source>
        <translation>Support de l’application</translation>
    </message>
    <message>
        <source>Container</source>
        <translation>Conteneur</translation>
    </message>
    <message>
        <source>Saved state</source>
        <translation>État enregistré</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <source>Web storage</source>
        <translation>Stockage web</translation>
    </message>
    <message>
        <source>WebKit data</source>
        <translation>Données WebKit</translation>
    </message>
    <message>
        <source>Cookies</source>
        <translation>Cookies</translation>
    </message>
    <message>
        <source>App scripts</source>
        <translation>Scripts de l’application</translation>
    </message>
    <message>
        <source>Group container</source>
        <translation>Conteneur de groupe</translation>
    </message>
    <message>
        <source>Launch agent</source>
        <translation>Agent de lancement</translation>
    </message>
    <message>
        <source>Menu entry</source>
        <translation>Entrée de menu</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
    <message>
        <source>That&apos;s a protected system app and can&apos;t be removed.</source>
        <translation>C’est une application système protégée, elle ne peut pas être supprimée.</translation>
    </message>
    <message>
        <source>That app came with your system, not your home folder. Remove it with your software centre.</source>
        <translation>Cette application est fournie avec votre système, pas avec votre dossier personnel. Supprimez-la avec votre logithèque.</translation>
    </message>
    <message>
        <source>That&apos;s a shared folder of your home, not an app, so it can&apos;t be removed.</source>
        <translation>C’est un dossier partagé de votre dossier personnel, pas une application : il ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>Uninstalled %1</source>
        <translation>%1 désinstallé</translation>
    </message>
    <message>
        <source>Removed %1 — freed %2. Items are in the Trash.</source>
        <translation>%1 supprimé — %2 libérés. Les éléments sont dans la corbeille.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>Impossible de supprimer %1.</translation>
    </message>
</context>
<context>
    <name>UninstallerView</name>
    <message>
        <source>Uninstall an App</source>
        <translation>Désinstaller une application</translation>
    </message>
    <message>
        <source>Choose App</source>
        <translation>Choisir une application</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Apps (*.AppImage *.appimage *.desktop)</source>
        <translation>Applications (*.AppImage *.appimage *.desktop)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Applications (*.app)</source>
        <translation>Applications (*.app)</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>Dev build</source>
        <translation>Version de développement</translation>
    </message>
    <message>
        <source>The update feed isn&apos;t at a secure (HTTPS) address.</source>
        <translation>Le flux de mises à jour n’est pas à une adresse sécurisée (HTTPS).</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach the update server: %1</source>
        <translation>Impossible de joindre le serveur de mises à jour : %1</translation>
    </message>
    <message>
        <source>The update information couldn&apos;t be read.</source>
        <translation>Les informations de mise à jour n’ont pas pu être lues.</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Mopwell</source>
        <translation>Bienvenue dans Mopwell</translation>
    </message>
</context>
<context>
    <name>WelcomeWindow</name>
    <message>
        <source>Welcome to Mopwell</source>
        <translation>Bienvenue dans Mopwell</translation>
    </message>
</context>
</TS>
