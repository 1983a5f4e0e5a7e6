#pragma once

enum class MessageSeverity { Information, Warning, Error };
